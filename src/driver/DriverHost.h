#pragma once

#include "base/Ref.h"
#include "driver/DriverEventPump.h"
#include "driver/DriverMessageBox.h"
#include "faults/FaultPlan.h"
#include "forms/FormModelFactory.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreItem.h"
#include "host/windows/HostApplication.h"
#include "platform/Platform.h"
#include "session/HostSettings.h"
#include "session/Profile.h"
#include "session/ProfileOptions.h"
#include "session/Session.h"

#include <string>
#include <vector>

namespace tempodial {

/// What the commands work on: a session with the driver's surroundings, in which calls can be made to fail.
class DriverHost
{
public:
    /// Opens the profile; fails with `ProfileInUse` or `ProfileError`.
    explicit DriverHost(const ProfileOptions& options);

    /// Starts a host in which the add-in sees what may fail; fails with `RequestError` when one is connected already.
    void Start(HostSettings settings);
    /// Stops the host that was last started; fails with `RequestError` when none was.
    void Stop();
    /// The windows of the host that was last started; fails with `RequestError` when none was.
    HostApplication& Windows() const;

    /// The folder of a path below the store; fails with `RequestError`.
    Ref<MAPIFolder> Folder(const std::string& path) const;
    /// The item of an identity; fails with `RequestError`.
    Ref<StoreItem> Item(const std::string& entryId) const;

    tempodial::Session& Session() { return mSession; }
    const tempodial::Profile& Profile() const { return mSession.Profile(); }
    const Ref<tempodial::Mailbox>& Mailbox() const { return mSession.Mailbox(); }
    FormModelFactory& Forms() { return *mSession.Forms(); }
    DriverMessageBox& MessageBox() { return *mMessageBox; }
    DriverEventPump& EventPump() { return *mEventPump; }
    FaultPlan& Faults() { return *mFaults; }
    /// The documents and addresses opened so far.
    const std::vector<std::string>& Opened() const { return *mOpened; }

private:
    Platform Surroundings(Imports imports) const;
    void RequireStarted() const;

    tempodial::Session mSession;
    Ref<DriverMessageBox> mMessageBox = MakeRef<DriverMessageBox>(Mailbox());
    Ref<DriverEventPump> mEventPump = MakeRef<DriverEventPump>(Profile().Surroundings().eventPump);
    Ref<FaultPlan> mFaults = MakeRef<FaultPlan>();
    Ref<std::vector<std::string>> mOpened = MakeRef<std::vector<std::string>>();
};

}
