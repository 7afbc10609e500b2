#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreItem.h"
#include "host/windows/HostInspector.h"
#include "host/windows/HostMail.h"
#include "host/windows/OwnerCommands.h"
#include "platform/objectmodel/Inspector.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace tempodial {

/// The inspectors of the host in the order in which they were opened.
class HostInspectors final : public Inspectors, public std::enable_shared_from_this<HostInspectors>
{
public:
    HostInspectors(Ref<Mailbox> mailbox, Ref<OwnerCommands> ownerCommands)
        : mMailbox(std::move(mailbox))
        , mOwnerCommands(std::move(ownerCommands))
    {
    }

    std::int32_t Count() override { return static_cast<std::int32_t>(mOpen.size()); }
    Ref<Inspector> Item(std::int32_t index) override;
    Subscription Subscribe(InspectorsEvents events) override { return mEvents.Subscribe(std::move(events)); }

    /// Subscribes whoever draws the windows. One that a handler refused was never on the screen, and isn't told of.
    Subscription SubscribeToWindows(HostWindowsEvents<HostInspector> events)
    {
        return mWindowsEvents.Subscribe(std::move(events));
    }
    /// A new window on an item, in front of the others: it is told of, then the item's `Open` is raised. When that is
    /// refused, or the window was closed meanwhile, the result is nothing.
    Ref<HostInspector> Open(const Ref<StoreItem>& item);
    /// A new window on a mail, in front of the others: it is told of.
    Ref<HostInspector> Open(const Ref<HostMail>& mail);
    /// Brings the window that shows the item to the front, opening one when there is none.
    template <class Item> void Show(const Ref<Item>& item)
    {
        if (const auto shown = Showing(item)) {
            Activate(shown);
        } else {
            Open(item);
        }
    }
    /// Brings a window to the front; does nothing with one that is gone.
    void Activate(const Ref<HostInspector>& inspector);
    /// Takes a window out, tells of it, and then it is gone. Does nothing with one that is gone.
    void TakeAway(const Ref<HostInspector>& inspector);
    /// The window in front, nothing when there is none.
    Ref<HostInspector> Active() const;
    /// What the host's owner does for built-in commands.
    const OwnerCommands& ForOwner() const { return *mOwnerCommands; }
    /// The windows that are open.
    const std::vector<Ref<HostInspector>>& All() const { return mOpen; }

private:
    Ref<HostInspector> Showing(const Ref<OutlookItem>& item) const;
    /// Takes in a new window and tells of it.
    Ref<HostInspector> Add(const Ref<OutlookItem>& item);
    /// A window comes to the screen, in front of the others; nothing when it is gone after that.
    Ref<HostInspector> PutOnScreen(const Ref<HostInspector>& inspector);
    /// Takes a window out of those that are open and were in front; false when it wasn't there.
    bool Remove(const Ref<HostInspector>& inspector);

    Ref<Mailbox> mMailbox;
    Ref<OwnerCommands> mOwnerCommands;
    std::int32_t mNumbers = 0;
    std::vector<Ref<HostInspector>> mOpen;
    /// The windows that have been in front, the one that is so now last.
    std::vector<Ref<HostInspector>> mByRecency;
    EventSource<InspectorsEvents> mEvents;
    EventSource<HostWindowsEvents<HostInspector>> mWindowsEvents;
};

}
