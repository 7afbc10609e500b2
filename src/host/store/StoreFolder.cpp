#include "host/store/StoreFolder.h"

#include "host/store/Mailbox.h"
#include "host/store/StoreFolders.h"
#include "host/store/StoreItems.h"
#include "host/store/StoreViews.h"

#include <utility>

namespace tempodial {

StoreFolder::StoreFolder(Ref<Mailbox> mailbox, std::int64_t row)
    : mMailbox(std::move(mailbox))
    , mRow(row)
{
}

std::string StoreFolder::EntryID() const
{
    mMailbox->Tree().Get(mRow);
    return mMailbox->Ids().OfFolder(mRow);
}

std::string StoreFolder::Name() const
{
    return mMailbox->Tree().Get(mRow).name;
}

std::string StoreFolder::FullFolderPath() const
{
    return mMailbox->Tree().FullPath(mRow);
}

Ref<Folders> StoreFolder::Folders()
{
    mMailbox->Tree().Get(mRow);
    return MakeRef<StoreFolders>(mMailbox, mRow);
}

Ref<Items> StoreFolder::Items()
{
    mMailbox->Tree().Get(mRow);
    return MakeRef<StoreItems>(mMailbox, mRow);
}

Ref<Views> StoreFolder::Views()
{
    mMailbox->Tree().Get(mRow);
    return MakeRef<StoreViews>(mMailbox, mRow);
}

DefaultFolder StoreFolder::Kind() const
{
    return mMailbox->Tree().Get(mRow).kind;
}

}
