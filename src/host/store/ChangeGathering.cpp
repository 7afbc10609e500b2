#include "host/store/ChangeGathering.h"

#include "host/store/EntryIds.h"
#include "host/store/FolderTree.h"
#include "host/store/ViewTable.h"

#include <utility>

namespace tempodial {

ChangeGathering::ChangeGathering(const EntryIds& ids, const FolderTree& tree, const ViewTable& views)
    : mIds(ids)
    , mTree(tree)
    , mViews(views)
{
}

Subscription ChangeGathering::Subscribe(MailboxEvents events)
{
    if (!std::exchange(mIsWatched, true)) {
        mToldLayout = Layout();
    }
    return mEvents.Subscribe(std::move(events));
}

void ChangeGathering::Saved(std::int64_t folder, std::int64_t item)
{
    if (mIsWatched) {
        auto& changes = mChanges.folders[mIds.OfFolder(folder)];
        changes.saved.insert(item);
        changes.gone.erase(item);
    }
}

void ChangeGathering::Gone(std::int64_t folder, std::int64_t item)
{
    if (mIsWatched) {
        auto& changes = mChanges.folders[mIds.OfFolder(folder)];
        changes.gone.insert(item);
        changes.saved.erase(item);
    }
}

void ChangeGathering::Tell()
{
    if (!mIsWatched) {
        return;
    }
    if (const auto layout = Layout(); std::exchange(mToldLayout, layout) != layout) {
        mEvents.Raise(&MailboxEvents::FoldersChanged);
    }
    if (const auto changes = std::exchange(mChanges, {}); !changes.IsEmpty()) {
        mEvents.Raise(&MailboxEvents::ItemsChanged, changes);
    }
}

std::int64_t ChangeGathering::Layout() const
{
    return mTree.Changes() + mViews.Changes();
}

}
