#include "host/store/FoldersBelow.h"

#include "platform/objectmodel/Folders.h"

#include <cstdint>

namespace tempodial {

std::vector<Ref<MAPIFolder>> FoldersBelow(const Ref<MAPIFolder>& folder)
{
    std::vector<Ref<MAPIFolder>> all;
    const auto folders = folder->Folders();
    const auto count = folders->Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        all.push_back(folders->Item(i));
        const auto below = FoldersBelow(all.back());
        all.insert(all.end(), below.begin(), below.end());
    }
    return all;
}

}
