#include "host/store/StoreFolders.h"

#include "base/Failure.h"
#include "host/store/MailboxStore.h"
#include "host/store/StoreFolder.h"

#include <cstddef>
#include <utility>

namespace tempodial {

StoreFolders::StoreFolders(Ref<MailboxStore> store, std::int64_t parent)
    : mStore(std::move(store))
    , mParent(parent)
{
}

std::int32_t StoreFolders::Count()
{
    return static_cast<std::int32_t>(mStore->Tree().Get(mParent).children.size());
}

Ref<MAPIFolder> StoreFolders::Item(std::int32_t index)
{
    const auto& children = mStore->Tree().Get(mParent).children;
    if (index < 1 || static_cast<std::size_t>(index) > children.size()) {
        throw Failure(Error::SubscriptOutOfRange);
    }
    return mStore->Folder(children[static_cast<std::size_t>(index) - 1]);
}

Ref<MAPIFolder> StoreFolders::ItemNamed(const std::string& name)
{
    const auto folder = mStore->Tree().Child(mParent, name);
    if (folder == 0) {
        throw Failure(Error::ObjectNotFound);
    }
    return mStore->Folder(folder);
}

Ref<MAPIFolder> StoreFolders::Add(const std::string& name, DefaultFolder type)
{
    return mStore->Folder(mStore->Tree().Add(mParent, name, type));
}

}
