#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "host/windows/HostExplorer.h"
#include "platform/objectmodel/Explorer.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace tempodial {

/// The explorers of the host in the order in which they were opened.
class HostExplorers final : public Explorers
{
public:
    HostExplorers(Ref<Mailbox> mailbox, Ref<OwnerCommands> ownerCommands)
        : mMailbox(std::move(mailbox))
        , mOwnerCommands(std::move(ownerCommands))
    {
    }

    std::int32_t Count() override { return static_cast<std::int32_t>(mOpen.size()); }
    Ref<Explorer> Item(std::int32_t index) override;
    Subscription Subscribe(ExplorersEvents events) override { return mEvents.Subscribe(std::move(events)); }

    /// Subscribes whoever draws the windows.
    Subscription SubscribeToWindows(HostWindowsEvents<HostExplorer> events)
    {
        return mWindowsEvents.Subscribe(std::move(events));
    }
    /// A new window on a folder, with or without its command bars: it is told of, then it comes to the front.
    Ref<HostExplorer> Open(const Ref<MAPIFolder>& folder, bool barsReady);
    /// Brings a window to the front and tells of it; does nothing with one that is gone.
    void Activate(const Ref<HostExplorer>& explorer);
    /// Takes a window out, tells of it, and then it is gone; the window that was in front before comes to the front.
    /// Does nothing with one that is gone.
    void Close(const Ref<HostExplorer>& explorer);
    /// A window is gone, and nobody is told.
    void Kill(const Ref<HostExplorer>& explorer);
    /// The window in front, nothing when there is none.
    Ref<HostExplorer> Active() const;
    /// The windows that are open.
    const std::vector<Ref<HostExplorer>>& All() const { return mOpen; }

private:
    /// False when it wasn't among them.
    bool TakeOut(const Ref<HostExplorer>& explorer);

    Ref<Mailbox> mMailbox;
    Ref<OwnerCommands> mOwnerCommands;
    std::int32_t mNumbers = 0;
    std::vector<Ref<HostExplorer>> mOpen;
    /// The windows that have been in front, the one that is so now last.
    std::vector<Ref<HostExplorer>> mByRecency;
    EventSource<ExplorersEvents> mEvents;
    EventSource<HostWindowsEvents<HostExplorer>> mWindowsEvents;
};

}
