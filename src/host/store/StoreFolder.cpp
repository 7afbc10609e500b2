#include "host/store/StoreFolder.h"

#include "host/store/MailboxStore.h"
#include "host/store/StoreFolders.h"
#include "host/store/StoreItems.h"
#include "host/store/StoreViews.h"

#include <utility>

namespace tempodial {

StoreFolder::StoreFolder(Ref<MailboxStore> store, std::int64_t row)
    : mStore(std::move(store))
    , mRow(row)
{
}

std::string StoreFolder::EntryID() const
{
    mStore->Tree().Get(mRow);
    return mStore->Ids().OfFolder(mRow);
}

std::string StoreFolder::Name() const
{
    return mStore->Tree().Get(mRow).name;
}

std::string StoreFolder::FullFolderPath() const
{
    return mStore->Tree().FullPath(mRow);
}

Ref<Folders> StoreFolder::Folders()
{
    mStore->Tree().Get(mRow);
    return MakeRef<StoreFolders>(mStore, mRow);
}

Ref<Items> StoreFolder::Items()
{
    mStore->Tree().Get(mRow);
    return MakeRef<StoreItems>(mStore, mRow);
}

Ref<Views> StoreFolder::Views()
{
    mStore->Tree().Get(mRow);
    return MakeRef<StoreViews>(mStore, mRow);
}

DefaultFolder StoreFolder::Kind() const
{
    return mStore->Tree().Get(mRow).kind;
}

}
