#include "session/Profile.h"

#include "host/files/ProgramFolder.h"
#include "host/files/ReplacementFile.h"
#include "host/store/MailboxError.h"
#include "host/store/MailboxReading.h"
#include "host/store/MailboxTrouble.h"
#include "host/system/BitmapLoader.h"
#include "host/system/ExpatXml.h"
#include "host/system/HostFileSystem.h"
#include "host/system/HostShell.h"
#include "host/system/IcuLocaleFormats.h"
#include "portable/InstalledRegistry.h"
#include "session/Forgetting.h"
#include "session/MailboxEventPump.h"
#include "session/ProfileError.h"
#include "session/ProfilePlace.h"
#include "session/Steps.h"

#include <utility>

namespace tempodial {

namespace {

std::unique_ptr<ProfileFolder> Locked(const std::string& path, std::chrono::seconds wait, const Profile::Warn& warn)
{
    auto folder = std::make_unique<ProfileFolder>(path, wait);
    if (warn && folder->IsWritableByOthers()) {
        warn(ProfilePlace::WarningOfWriters(folder->Path()));
    }
    return folder;
}

/// The text of a file; nothing when there is none that can be read.
std::optional<std::string> TextOf(FileSystemObject& files, const std::string& path)
{
    try {
        return files.OpenTextFile(path, OpenMode::Reading, false)->ReadAll();
    } catch (const Failure& failure) {
        return failure.Is(Error::InputPastEnd) ? std::optional(std::string()) : std::nullopt;
    }
}

}

Profile::Profile(const std::string& folder, const std::string& locale, std::optional<Date> now,
    std::chrono::seconds wait, const Warn& warn)
    : Profile(Locked(folder, wait, warn), ProfilePlace::UsablePath(folder), locale, now, Mailbox::Open)
{
    mJournal = MakeRef<StoreImportJournal>(mMailbox,
        [files = mPlatform.fileSystem, path = DataFolder() + "/" + HistoryFileName] { return TextOf(*files, path); });
    mPlatform.importJournal = mJournal;
    ReplacementFile::DiscardLeftovers(NativePath::Exactly(DataFolder()));
    Steps(*this).Recover();
    Forgetting(*this).Recover();
}

Profile Profile::ForReading(
    const std::string& folder, const std::string& locale, std::optional<Date> now, const Warn& warn)
{
    const ProfilePlace place(folder);
    if (warn && !place.HasProfile()) {
        warn("no profile at " + place.Path() + " yet");
    } else if (warn && place.IsWritableByOthers()) {
        warn(ProfilePlace::WarningOfWriters(place.Path()));
    }
    Profile profile(nullptr, place.Path(), locale, now, [&](const auto& path, const auto& formats, const auto& xml) {
        return OpenMailboxForReading(path, formats, xml, place.IsHeld());
    });
    profile.mIsThere = place.HasProfile();
    profile.mIsHeld = place.IsHeld();
    return profile;
}

Profile::Profile(std::unique_ptr<ProfileFolder> lock, std::string path, const std::string& locale,
    std::optional<Date> now, const Opener& open)
    : mLock(std::move(lock))
    , mPath(std::move(path))
    , mClock(MakeRef<HostClock>(now))
{
    try {
        mPlatform.formats = MakeRef<IcuLocaleFormats>(locale);
        mPlatform.xml = MakeRef<ExpatXmlFactory>();
        mRegistry = MakeRef<TomlRegistry>(mPath + "/" + RegistryFileName);
        mRegistry->RequireSound(ProductKey, { ProjectsValue });
        mMailbox = open(mPath + "/" + MailboxFileName, mPlatform.formats, mPlatform.xml);
    } catch (const RegistryFileError& error) {
        throw ProfileError(error.what());
    } catch (const MailboxError& error) {
        throw ProfileError(error.what());
    }
    mMailbox->SetClock([clock = mClock] { return clock->UniversalNow(); });
    mRegistry->mBeforeChange = [mailbox = mMailbox] { RequireNoTrouble(mailbox); };
    const auto fileSystem = MakeRef<HostFileSystem>(mPath);
    fileSystem->mBeforeChange = mRegistry->mBeforeChange;
    mPlatform.fileSystem = fileSystem;
    mPlatform.registry = MakeRef<InstalledRegistry>(
        mRegistry, InstalledRegistry::Place { ProductKey, InstallFolderValue }, InProgramFolder(TemplatesFolderName));
    mPlatform.shell = MakeRef<HostShell>();
    mPlatform.clock = mClock;
    mPlatform.pictures = MakeRef<BitmapLoader>();
    mPlatform.eventPump = MakeRef<MailboxEventPump>(mMailbox);
}

}
