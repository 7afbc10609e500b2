#pragma once

#include "base/Subscription.h"
#include "host/store/ItemChanges.h"
#include "host/store/MailboxWatch.h"

#include <cstdint>

namespace tempodial {

class EntryIds;
class FolderTree;
class ViewTable;

/// Gathers what changes in a mailbox until it is told. Until somebody listens it gathers nothing and costs nothing.
class ChangeGathering
{
public:
    /// What is given must live as long as this.
    ChangeGathering(const EntryIds& ids, const FolderTree& tree, const ViewTable& views);

    Subscription Subscribe(MailboxEvents events);
    /// An item came to a folder, or was changed there.
    void Saved(std::int64_t folder, std::int64_t item);
    /// An item was deleted from a folder, or moved away.
    void Gone(std::int64_t folder, std::int64_t item);
    /// Items changed of which it isn't known which they are.
    void Anything() { mChanges.isAnything = mIsWatched; }
    /// Tells what was gathered, if anything was.
    void Tell();

private:
    /// Counts changes of folders and views.
    std::int64_t Layout() const;

    const EntryIds& mIds;
    const FolderTree& mTree;
    const ViewTable& mViews;
    bool mIsWatched = false;
    ItemChanges mChanges;
    std::int64_t mToldLayout = 0;
    EventSource<MailboxEvents> mEvents;
};

}
