#pragma once

#include "base/Ref.h"
#include "driver/DriverEventPump.h"
#include "driver/DriverMessageBox.h"
#include "driver/DriverSurroundings.h"
#include "driver/remote/RemoteAddIn.h"
#include "driver/remote/RemotePrograms.h"
#include "faults/FaultPlan.h"
#include "forms/ModelHands.h"
#include "host/store/Mailbox.h"
#include "host/store/StoreItem.h"
#include "host/windows/HostApplication.h"
#include "platform/Platform.h"
#include "session/HostSettings.h"
#include "session/Profile.h"
#include "session/ProfileOptions.h"
#include "session/Session.h"

#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// What the commands work on: a session with the driver's surroundings, in which calls can be made to fail.
class DriverHost
{
public:
    /// The session must outlive it.
    DriverHost(tempodial::Session& session, DriverSurroundings surroundings);
    ~DriverHost();
    DriverHost(const DriverHost&) = delete;
    DriverHost& operator=(const DriverHost&) = delete;

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
    /// The person who does what commands ask for.
    tempodial::Hand& Hand() { return *mHand; }
    /// What can be seen otherwise than the models have it.
    std::vector<std::string> Differences() const;
    /// A person at the add-in's forms, wherever it runs.
    FormHands& Forms();
    /// True when forms have windows, which make steps of clicks themselves.
    bool HasFormWindows() const { return static_cast<bool>(mSurroundings.forms); }
    /// The calls that are made in this program, and which of them are to fail.
    FaultPlan& Faults() { return *mFaults; }
    /// Lets calls of the add-in fail, wherever it runs; fails with `RequestError` when it runs where they can't.
    void Add(const FaultPlan::Fault& fault);
    /// A value of the add-in's registry, nothing when there is none.
    Variant RegistryValue(Hive hive, const std::string& key, const std::string& value) const;
    /// Sets a value of the add-in's registry to a text or a number, or deletes it for nothing.
    void SetRegistryValue(Hive hive, const std::string& key, const std::string& value, const Variant& data);
    DriverMessageBox& MessageBox() { return *mMessageBox; }
    DriverEventPump& EventPump() { return *mEventPump; }
    /// The documents and addresses opened so far.
    const std::vector<std::string>& Opened() const { return *mOpened; }

private:
    Platform Surroundings(Imports imports) const;
    /// Loads the add-in for Windows, with what was planned of faults.
    Ref<LoadedAddIn> LoadRemote(const Platform& surroundings);
    void RequireStarted() const;

    tempodial::Session& mSession;
    DriverSurroundings mSurroundings;
    Ref<DriverMessageBox> mMessageBox;
    Ref<DriverEventPump> mEventPump;
    Ref<FaultPlan> mFaults = MakeRef<FaultPlan>();
    ModelHands mHands { *mSession.Forms() };
    Ref<tempodial::Hand> mHand;
    /// The add-in for Windows while it is connected.
    Ref<RemoteAddIn> mRemote;
    /// Faults that were planned while none was.
    std::vector<FaultPlan::Fault> mPlanned;
    Ref<std::vector<std::string>> mOpened = MakeRef<std::vector<std::string>>();
};

}
