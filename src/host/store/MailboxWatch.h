#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "host/store/ItemChanges.h"

#include <functional>

namespace tempodial {

class Mailbox;

/// What whoever shows a mailbox wants to know.
struct MailboxEvents
{
    /// Items were saved, moved or deleted.
    std::function<void(const ItemChanges& changes)> ItemsChanged;
    /// Folders were made, renamed, moved or deleted, or their views made, deleted or defined anew.
    std::function<void()> FoldersChanged;
};

/// Tells what changes in a mailbox for as long as this lives. It is gathered until the host is idle, lets messages be
/// processed or comes back from the add-in, and told behind what has arrived. What isn't committed yet is told too, and
/// so is that it was undone.
class MailboxWatch
{
public:
    MailboxWatch(const Ref<Mailbox>& mailbox, MailboxEvents events);

private:
    Subscription mSubscription;
};

}
