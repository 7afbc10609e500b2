#pragma once

#include "base/Ref.h"
#include "engine/core/TempodialMain.h"
#include "forms/FormModelFactory.h"
#include "host/store/Mailbox.h"
#include "host/windows/HostApplication.h"
#include "host/windows/HostMail.h"
#include "platform/Platform.h"
#include "session/HostSettings.h"
#include "session/Imports.h"
#include "session/KeepingFileSystem.h"
#include "session/Profile.h"
#include "session/ProfileOptions.h"
#include "session/StartedHost.h"

#include <vector>

namespace tempodial {

/// One profile opened, and over it a host with the add-in, started as often as need be: all that a program has to do
/// around the add-in but what it shows itself. A program ends the host, by `Exit` or `End`, before anything goes that
/// its surroundings lean on.
class Session
{
public:
    /// Opens the profile; fails with `ProfileInUse` or `ProfileError`.
    explicit Session(const ProfileOptions& options);

    /// What a program gives back to `Start`, with its message box in it and whatever else it puts in place of this: the
    /// profile's surroundings, with forms as plain models. Imports go by what is named from now on.
    Platform Surroundings(Imports imports = Imports::ByHistory) const;
    /// Makes a host with its windows and connects the add-in in these surroundings; none may be connected. Fails with
    /// `Failure` when the registry's file refuses what the add-in wrote, and then none is.
    void Start(Platform surroundings, const HostSettings& settings = {});
    /// Begins the shut-down of the host and disconnects the add-in, whose forms go with it; the windows stay.
    void Stop();
    /// Ends as a normal exit of Outlook does: every window is closed, the application quits, the add-in is
    /// disconnected. Does nothing when no host was started.
    void Exit();
    /// Lets the add-in hear what happened, disconnects it and lets the host go; does nothing when none is connected.
    void End();
    /// Lets the add-in hear what happened in the mailbox, as an idle host does.
    void Idle() { Mailbox()->DeliverEvents(); }
    /// Lets hosts go that were replaced by another `Start`; called when nothing runs inside them.
    void DropReplaced() { mReplaced.clear(); }

    /// True when a host was started, and since then no `End` let it go.
    bool IsStarted() const { return static_cast<bool>(mHost); }
    /// True while the add-in is connected.
    bool IsConnected() const { return mHost && mHost->IsConnected(); }
    /// The windows of the host that was last started; fails with `Failure` when there is none.
    HostApplication& Windows() const { return mHost->Windows(); }
    /// The add-in's own members; fails with `Failure` while it isn't connected, when it stays dormant, and when it runs
    /// elsewhere.
    TempodialMain& AddIn() const { return mHost->AddIn(); }
    /// The mail that came last to the screen, nothing when there is none.
    Ref<HostMail> ShownMail() const;

    /// Where tracker files were kept that were too old, in order.
    const std::vector<std::string>& KeptFiles() const { return mFiles->Kept(); }

    const tempodial::Profile& Profile() const { return mProfile; }
    const Ref<tempodial::Mailbox>& Mailbox() const { return mProfile.Mailbox(); }
    const Ref<FormModelFactory>& Forms() const { return mForms; }

private:
    tempodial::Profile mProfile;
    Ref<KeepingFileSystem> mFiles;
    Ref<FormModelFactory> mForms = MakeRef<FormModelFactory>();
    Ref<StartedHost> mHost;
    std::vector<Ref<StartedHost>> mReplaced;
};

}
