#pragma once

#include "base/Ref.h"
#include "driver/DriverEventPump.h"
#include "driver/DriverMessageBox.h"
#include "driver/HostSession.h"
#include "faults/FaultPlan.h"
#include "forms/FormModelFactory.h"
#include "host/store/StoreItem.h"
#include "platform/Platform.h"
#include "session/Profile.h"
#include "session/ProfileOptions.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// What the commands work on: a profile with its surroundings, and the host that is started over it, if any.
class DriverHost
{
public:
    /// How the host is started.
    struct Settings
    {
        std::int32_t explorers = 1;
        Ref<MAPIFolder> folder;
        std::string version;
        bool logon = true;
    };

    /// Opens the profile; fails with `ProfileInUse` or `ProfileError`.
    explicit DriverHost(const ProfileOptions& options);

    /// Makes a host with its windows and connects the add-in; fails when one is connected already.
    void Start(const Settings& settings);
    /// Begins the shut-down of the host and disconnects the add-in, whose forms go with it.
    void Stop();
    /// The host that was last started; fails with `RequestError` when none was.
    Ref<HostSession> Session() const;
    /// True when a host was started.
    bool IsStarted() const { return static_cast<bool>(mSession); }
    /// Ends as a normal exit of Outlook does: every window is closed, the application quits, the add-in is
    /// disconnected.
    void Exit();
    /// Lets hosts go that were replaced; called when nothing runs inside them.
    void DropReplaced() { mReplaced.clear(); }
    /// Lets the add-in hear what happened in the mailbox, as an idle host does.
    void Idle() { mProfile.Mailbox()->DeliverEvents(); }

    /// The folder of a path below the store; fails with `RequestError`.
    Ref<MAPIFolder> Folder(const std::string& path) const;
    /// The item of an identity; fails with `RequestError`.
    Ref<StoreItem> Item(const std::string& entryId) const;

    const tempodial::Profile& Profile() const { return mProfile; }
    const Ref<tempodial::Mailbox>& Mailbox() const { return mProfile.Mailbox(); }
    FormModelFactory& Forms() { return *mForms; }
    DriverMessageBox& MessageBox() { return *mMessageBox; }
    DriverEventPump& EventPump() { return *mEventPump; }
    FaultPlan& Faults() { return *mFaults; }
    /// The documents and addresses opened so far.
    const std::vector<std::string>& Opened() const { return *mOpened; }

private:
    Ref<const Platform> Surroundings() const;

    tempodial::Profile mProfile;
    Ref<FormModelFactory> mForms = MakeRef<FormModelFactory>();
    Ref<DriverMessageBox> mMessageBox = MakeRef<DriverMessageBox>(mProfile.Mailbox());
    Ref<DriverEventPump> mEventPump = MakeRef<DriverEventPump>(mProfile.Surroundings().eventPump);
    Ref<FaultPlan> mFaults = MakeRef<FaultPlan>();
    Ref<std::vector<std::string>> mOpened = MakeRef<std::vector<std::string>>();
    Ref<HostSession> mSession;
    std::vector<Ref<HostSession>> mReplaced;
};

}
