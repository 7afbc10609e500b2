#include "host/store/StoreNameSpace.h"

#include "base/Failure.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreFolder.h"
#include "host/store/StoreFolders.h"

#include <utility>

namespace tempodial {

StoreNameSpace::StoreNameSpace(Ref<Mailbox> mailbox)
    : mMailbox(std::move(mailbox))
{
}

Ref<MAPIFolder> StoreNameSpace::GetDefaultFolder(DefaultFolder type)
{
    const auto folder = mMailbox->Tree().Default(type);
    if (folder == 0) {
        throw Failure(Error::ObjectNotFound);
    }
    return mMailbox->Folder(folder);
}

Ref<Folders> StoreNameSpace::Folders()
{
    return MakeRef<StoreFolders>(mMailbox, 0);
}

}
