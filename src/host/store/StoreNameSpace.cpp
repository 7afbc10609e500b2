#include "host/store/StoreNameSpace.h"

#include "base/Failure.h"
#include "host/store/MailboxStore.h"
#include "host/store/StoreFolder.h"
#include "host/store/StoreFolders.h"

#include <utility>

namespace tempodial {

StoreNameSpace::StoreNameSpace(Ref<MailboxStore> store)
    : mStore(std::move(store))
{
}

Ref<MAPIFolder> StoreNameSpace::GetDefaultFolder(DefaultFolder type)
{
    const auto folder = mStore->Tree().Default(type);
    if (folder == 0) {
        throw Failure(Error::ObjectNotFound);
    }
    return mStore->Folder(folder);
}

Ref<Folders> StoreNameSpace::Folders()
{
    return MakeRef<StoreFolders>(mStore, 0);
}

}
