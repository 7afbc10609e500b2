#include "driver/DriverHost.h"

#include "driver/RequestError.h"
#include "faults/Wrapped.h"
#include "host/system/HostShell.h"

namespace tempodial {

DriverHost::DriverHost(const ProfileOptions& options)
    : mSession(options)
{
}

void DriverHost::Start(HostSettings settings)
{
    if (mSession.IsConnected()) {
        throw RequestError("the host is started already: stop it first");
    }
    settings.seen = [faults = mFaults](const Ref<Application>& application) { return Wrapped(application, faults); };
    mSession.Start(Surroundings(settings.imports), settings);
}

void DriverHost::Stop()
{
    RequireStarted();
    mSession.Stop();
}

HostApplication& DriverHost::Windows() const
{
    RequireStarted();
    return mSession.Windows();
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

Platform DriverHost::Surroundings(Imports imports) const
{
    auto surroundings = mSession.Surroundings(imports);
    surroundings.messageBox = mMessageBox;
    surroundings.eventPump = mEventPump;
    surroundings.shell
        = MakeRef<HostShell>([opened = mOpened](const std::string& document) { opened->push_back(document); });
    return Wrapped(surroundings, mFaults);
}

void DriverHost::RequireStarted() const
{
    if (!mSession.IsStarted()) {
        throw RequestError("no host is started: give the command \"start\" first");
    }
}

}
