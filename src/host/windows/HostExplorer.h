#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "host/windows/HostCommandBars.h"
#include "host/windows/HostWindowEvents.h"
#include "host/windows/OwnerCommands.h"
#include "platform/objectmodel/Explorer.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// A window of the host that shows a folder, or several calendars side by side.
class HostExplorer final : public Explorer, public std::enable_shared_from_this<HostExplorer>
{
public:
    /// A window of that number, which has no command bars yet; fails as `SetCurrentFolder` does.
    HostExplorer(
        std::int32_t number, Ref<Mailbox> mailbox, const Ref<MAPIFolder>& folder, Ref<OwnerCommands> ownerCommands);

    std::string Caption() const override;
    Ref<MAPIFolder> CurrentFolder() override;
    /// Goes to a folder, in which nothing is selected, and tells of the switch, then of the selection. Calendars that
    /// stand side by side stay so when it is one of them. Nothing fails (91), a folder that is gone (-2147221233).
    void SetCurrentFolder(const Ref<MAPIFolder>& folder) override;
    /// The view that was last applied to the folder, its first one when there is no such any more; "" when it has none.
    std::string CurrentView() override;
    /// An unknown name fails (5).
    void SetCurrentView(const std::string& name) override;
    Ref<tempodial::Selection> Selection() override;
    bool IsFolderSelected(const Ref<MAPIFolder>& folder) override;
    Ref<tempodial::CommandBars> CommandBars() override;
    Subscription Subscribe(ExplorerEvents events) override { return mEvents.Subscribe(std::move(events)); }

    /// Subscribes whoever draws the window, apart from its bars: caption, folder, view and selection.
    Subscription SubscribeToChanges(HostWindowEvents events) { return mWindowEvents.Subscribe(std::move(events)); }
    /// The window's number, from 1 and never given again.
    std::int32_t Number() const { return mNumber; }
    /// The command bars come into being; does nothing when they are there.
    void MakeBarsReady();
    /// A person goes to a folder, which then stands alone; tells and fails as `SetCurrentFolder` does.
    void GoTo(const Ref<MAPIFolder>& folder);
    /// A person shows folders side by side, the first being the current one; tells of the selection. None fails (5).
    void ShowBeside(const std::vector<Ref<MAPIFolder>>& folders);
    /// A person selects those items; tells of the selection.
    void Select(std::vector<Ref<OutlookItem>> items);
    /// A person picks a view; an unknown name fails (5).
    void PickView(const std::string& name) { SetCurrentView(name); }
    /// The command bars; none as long as they aren't there.
    const Ref<HostCommandBars>& Bars() const { return mBars; }
    /// True once the window is gone.
    bool IsGone() const { return mGone; }
    /// The window has come to the front.
    void RaiseActivate();
    /// The window is about to be gone.
    void RaiseClose() { mEvents.Raise(&ExplorerEvents::Close); }
    /// The window is gone: every member of the object model fails (462) from now on.
    void MarkGone();

private:
    void CheckOpen() const;
    /// The mailbox's own object for a folder, which may come from elsewhere.
    Ref<MAPIFolder> OwnFolder(const Ref<MAPIFolder>& folder) const;
    void Show(const Ref<MAPIFolder>& folder);
    void Changed() const { mWindowEvents.Raise(&HostWindowEvents::Changed); }
    void RaiseSelectionChange();
    void Run(std::int32_t command);
    void DeleteSelected();

    std::int32_t mNumber;
    Ref<Mailbox> mMailbox;
    Ref<MAPIFolder> mFolder;
    Ref<OwnerCommands> mOwnerCommands;
    /// The identities of the folders that stand side by side; none when the current folder stands alone.
    std::vector<std::string> mBeside;
    /// The names of the views applied, by the identities of their folders.
    std::map<std::string, std::string> mViews;
    std::vector<Ref<OutlookItem>> mSelected;
    Ref<HostCommandBars> mBars = MakeRef<HostCommandBars>();
    bool mGone = false;
    EventSource<ExplorerEvents> mEvents;
    EventSource<HostWindowEvents> mWindowEvents;
};

}
