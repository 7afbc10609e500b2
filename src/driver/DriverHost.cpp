#include "driver/DriverHost.h"

#include "base/Text.h"
#include "driver/ModelHand.h"
#include "driver/RequestError.h"
#include "faults/Wrapped.h"
#include "host/files/ProgramFolder.h"
#include "host/system/HostShell.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

/// True for a call that the add-in doesn't make to the object model.
bool IsOfSurroundings(const std::string& call)
{
    constexpr std::array<std::string_view, 9> Classes { "FileSystem", "FileSystemObject", "PictureLoader", "Registry",
        "Shell", "TextStream", "XmlDocument", "XmlFactory", "XmlNode" };
    const auto name = call.substr(0, call.find('.'));
    return std::any_of(
        Classes.begin(), Classes.end(), [&](const auto className) { return EqualIgnoringCase(name, className); });
}

}

DriverHost::DriverHost(tempodial::Session& session, DriverSurroundings surroundings)
    : mSession(session)
    , mSurroundings(std::move(surroundings))
    , mMessageBox(MakeRef<DriverMessageBox>(Mailbox(), mSurroundings.showMessage))
    , mEventPump(MakeRef<DriverEventPump>(
          mSurroundings.eventPump ? mSurroundings.eventPump : Profile().Surroundings().eventPump))
    , mHand(mSurroundings.person ? mSurroundings.person(*this) : Ref<tempodial::Hand>(MakeRef<ModelHand>(*this)))
{
}

DriverHost::~DriverHost() = default;

void DriverHost::Start(HostSettings settings)
{
    if (mSession.IsConnected()) {
        throw RequestError("the host is started already: stop it first");
    }
    settings.seen = [faults = mFaults](const Ref<Application>& application) { return Wrapped(application, faults); };
    const auto surroundings = Surroundings(settings.imports);
    if (mSurroundings.programs) {
        if (settings.imports == Imports::ByLines) {
            throw RequestError("the add-in for Windows can't remember what it has imported: leave out \"remember\"");
        }
        settings.load = [&] { return LoadRemote(surroundings); };
    }
    mSession.Start(Wrapped(surroundings, mFaults), settings);
}

void DriverHost::Stop()
{
    RequireStarted();
    mSession.Stop();
    mRemote = nullptr;
}

FormHands& DriverHost::Forms()
{
    if (mSurroundings.forms) {
        return *mSurroundings.forms;
    }
    return mRemote ? mRemote->Forms() : mHands;
}

std::vector<std::string> DriverHost::Differences() const
{
    return mSurroundings.differences ? mSurroundings.differences() : std::vector<std::string>();
}

Ref<LoadedAddIn> DriverHost::LoadRemote(const Platform& surroundings)
{
    const auto& folder = surroundings.fileSystem->GetSpecialFolder(SpecialFolder::Temporary);
    const auto remote = MakeRef<RemoteAddIn>(RemoteSettings { .programs = *mSurroundings.programs,
                                                 .profile = folder,
                                                 .installFolder = InProgramFolder("share/tempodial"),
                                                 .locale = mSurroundings.locale },
        surroundings, Profile().Registry());
    for (const auto& fault : std::exchange(mPlanned, {})) {
        remote->Add(fault);
    }
    mRemote = remote;
    return remote;
}

void DriverHost::Add(const FaultPlan::Fault& fault)
{
    // The calls of the object model are made here, all others there.
    const bool isInstalled = mSurroundings.programs && !mSurroundings.programs->installed.empty();
    if (isInstalled && IsOfSurroundings(fault.call)) {
        throw RequestError("the call \"" + fault.call + "\" can't fail in the add-in as it is installed");
    }
    mFaults->Add(fault);
    if (mRemote && !isInstalled) {
        mRemote->Add(fault);
    } else if (mSurroundings.programs && mSurroundings.programs->installed.empty()) {
        mPlanned.push_back(fault);
    }
}

Variant DriverHost::RegistryValue(Hive hive, const std::string& key, const std::string& value) const
{
    return mRemote ? mRemote->RegistryValue(hive, key, value) : Profile().Registry()->Get(hive, key, value);
}

void DriverHost::SetRegistryValue(Hive hive, const std::string& key, const std::string& value, const Variant& data)
{
    const auto& registry = Profile().Registry();
    if (mRemote) {
        mRemote->SetRegistryValue(hive, key, value, data);
    } else if (const auto* number = data.If<std::int32_t>()) {
        registry->WriteNumber(hive, key, value, *number);
    } else if (data.IsEmpty()) {
        registry->Delete(hive, key, value);
    } else {
        registry->Write(hive, key, value, data.ToText());
    }
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
    return surroundings;
}

void DriverHost::RequireStarted() const
{
    if (!mSession.IsStarted()) {
        throw RequestError("no host is started: give the command \"start\" first");
    }
}

}
