#include "session/Session.h"

#include "base/Failure.h"
#include "session/OpenProfile.h"
#include "session/OwnAddIn.h"
#include "session/ProfileSettings.h"

#include <utility>

namespace tempodial {

Session::Session(const ProfileOptions& options)
    : mProfile(OpenProfile(options))
    , mFiles(MakeRef<KeepingFileSystem>(mProfile.Surroundings().fileSystem->GetSpecialFolder(SpecialFolder::Temporary),
          mProfile.Mailbox(), RetentionOf(mProfile)))
{
    mFiles->mBeforeChange = mProfile.Registry()->mBeforeChange;
}

Platform Session::Surroundings(Imports imports) const
{
    auto surroundings = mProfile.Surroundings();
    mProfile.Journal()->SetRemembers(imports == Imports::ByLines);
    if (imports == Imports::ByLines) {
        surroundings.fileSystem = mFiles;
    }
    surroundings.forms = mForms;
    return surroundings;
}

void Session::Start(Platform surroundings, const HostSettings& settings)
{
    const auto addIn = settings.load
        ? settings.load()
        : Ref<LoadedAddIn>(MakeRef<OwnAddIn>(MakeRef<Platform>(std::move(surroundings)), SupportAddressOf(mProfile)));
    const auto application = MakeRef<HostApplication>(Mailbox(), settings.version);
    if (settings.made) {
        settings.made(application);
    }
    const auto folder
        = settings.folder ? settings.folder : Mailbox()->NameSpace()->GetDefaultFolder(DefaultFolder::Inbox);
    for (std::int32_t i = 0; i < settings.explorers; ++i) {
        application->OpenExplorer(folder);
    }
    if (mHost) {
        mReplaced.push_back(mHost);
    }
    const auto host = MakeRef<StartedHost>(application, addIn);
    mHost = host;
    // What the add-in takes for its first run must not be over in the file before all is there that it writes then.
    try {
        mProfile.Registry()->Together([&] {
            host->Connect(settings.seen ? settings.seen(application) : application);
            if (settings.logon) {
                application->RaiseMapiLogonComplete();
            }
        });
    } catch (const Failure&) {
        End();
        throw;
    }
    Idle();
}

void Session::Stop()
{
    mHost->Disconnect();
    mForms->CloseAll();
}

void Session::Exit()
{
    if (!mHost) {
        return;
    }
    mHost->CloseWindows();
    Idle();
    if (mHost->IsConnected()) {
        mHost->Windows().RaiseQuit();
        Stop();
    }
}

void Session::End()
{
    if (IsConnected()) {
        Idle();
        Stop();
        mHost = nullptr;
    }
}

Ref<HostMail> Session::ShownMail() const
{
    const auto mails = Windows().Mails();
    return mails.empty() ? nullptr : mails.back();
}

}
