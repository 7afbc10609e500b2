#include "driver/DriverHost.h"

#include "driver/RequestError.h"
#include "faults/Wrapped.h"
#include "host/system/HostShell.h"
#include "session/OpenProfile.h"

namespace tempodial {

DriverHost::DriverHost(const ProfileOptions& options)
    : mProfile(OpenProfile(options))
{
}

void DriverHost::Start(const Settings& settings)
{
    if (mSession && mSession->IsConnected()) {
        throw RequestError("the host is started already: stop it first");
    }
    const auto application = MakeRef<HostApplication>(Mailbox(), settings.version);
    for (std::int32_t i = 0; i < settings.explorers; ++i) {
        application->OpenExplorer(settings.folder);
    }
    if (mSession) {
        mReplaced.push_back(mSession);
    }
    const auto session = MakeRef<HostSession>(application, Surroundings());
    mSession = session;
    session->Connect(Wrapped(Ref<Application>(application), mFaults));
    if (settings.logon) {
        application->RaiseMapiLogonComplete();
    }
}

void DriverHost::Stop()
{
    Session()->Disconnect();
    mForms->CloseAll();
}

Ref<HostSession> DriverHost::Session() const
{
    if (!mSession) {
        throw RequestError("no host is started: give the command \"start\" first");
    }
    return mSession;
}

void DriverHost::Exit()
{
    if (!mSession) {
        return;
    }
    mSession->CloseWindows();
    Idle();
    if (mSession->IsConnected()) {
        mSession->Windows().RaiseQuit();
        Stop();
    }
}

Ref<MAPIFolder> DriverHost::Folder(const std::string& path) const
{
    try {
        return Mailbox()->FolderByPath(path);
    } catch (const Failure&) {
        throw RequestError("there is no folder \"" + path + "\"");
    }
}

Ref<StoreItem> DriverHost::Item(const std::string& entryId) const
{
    try {
        return Mailbox()->ItemById(entryId);
    } catch (const Failure&) {
        throw RequestError("there is no item \"" + entryId + "\"");
    }
}

Ref<const Platform> DriverHost::Surroundings() const
{
    auto platform = mProfile.Surroundings();
    platform.forms = mForms;
    platform.messageBox = mMessageBox;
    platform.eventPump = mEventPump;
    platform.shell
        = MakeRef<HostShell>([opened = mOpened](const std::string& document) { opened->push_back(document); });
    return MakeRef<Platform>(Wrapped(platform, mFaults));
}

}
