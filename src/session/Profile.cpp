#include "session/Profile.h"

#include "host/files/ProgramFolder.h"
#include "host/store/MailboxError.h"
#include "host/system/BitmapLoader.h"
#include "host/system/ExpatXml.h"
#include "host/system/HostFileSystem.h"
#include "host/system/HostShell.h"
#include "host/system/IcuLocaleFormats.h"
#include "portable/InstalledRegistry.h"
#include "session/MailboxEventPump.h"
#include "session/ProfileError.h"

namespace tempodial {

Profile::Profile(const std::string& folder, const std::string& locale, std::optional<Date> now,
    std::chrono::seconds wait, const std::function<void(const std::string& message)>& warn)
    : mFolder(folder, wait)
    , mClock(MakeRef<HostClock>(now))
{
    if (warn && mFolder.IsWritableByOthers()) {
        warn("other users may write into the profile " + mFolder.Path()
            + ": take that right from them (chmod go-w), or name another with --profile");
    }
    try {
        mPlatform.formats = MakeRef<IcuLocaleFormats>(locale);
        mPlatform.xml = MakeRef<ExpatXmlFactory>();
        mRegistry = MakeRef<TomlRegistry>(mFolder.Path() + "/" + RegistryFileName);
        mRegistry->RequireSound(ProductKey, { ProjectsValue });
        mMailbox = Mailbox::Open(mFolder.Path() + "/" + MailboxFileName, mPlatform.formats, mPlatform.xml);
    } catch (const RegistryFileError& error) {
        throw ProfileError(error.what());
    } catch (const MailboxError& error) {
        throw ProfileError(error.what());
    }
    mPlatform.fileSystem = MakeRef<HostFileSystem>(mFolder.Path());
    mPlatform.registry = MakeRef<InstalledRegistry>(
        mRegistry, InstalledRegistry::Place { ProductKey, InstallFolderValue }, InProgramFolder("share/tempodial"));
    mPlatform.shell = MakeRef<HostShell>();
    mPlatform.clock = mClock;
    mPlatform.pictures = MakeRef<BitmapLoader>();
    mJournal = MakeRef<StoreImportJournal>(mMailbox);
    mPlatform.importJournal = mJournal;
    mPlatform.eventPump = MakeRef<MailboxEventPump>(mMailbox);
}

}
