#include "session/Restoring.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/files/ArchiveFile.h"
#include "host/files/PathOperations.h"
#include "host/files/UnpackedFolder.h"
#include "host/store/MailboxError.h"
#include "host/store/MailboxReading.h"
#include "host/store/MailboxTrouble.h"
#include "host/system/ExpatXml.h"
#include "host/system/IcuLocaleFormats.h"
#include "host/system/TomlRegistry.h"
#include "session/Backup.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "session/ProfileError.h"
#include "session/ProfileFolder.h"
#include "session/ProfilePlace.h"
#include "session/WorkLogFolder.h"

#include <memory>

namespace tempodial {

namespace {

/// What is in the place of a profile, held against other processes while this lives.
class FormerProfile
{
public:
    explicit FormerProfile(const ProfileOptions& options)
        : mPath(ProfilePath(options))
    {
        const ProfilePlace place(mPath);
        mIsThere = StatusAt(NativePath::Exactly(mPath), Links::Followed).has_value();
        if (mIsThere) {
            mIsEmpty = FolderDescriptor(NativePath::Exactly(mPath)).IsEmpty();
            mHasProfile = place.HasProfile();
        }
    }

    const std::string& Path() const { return mPath; }
    bool IsThere() const { return mIsThere; }
    bool IsEmpty() const { return mIsEmpty; }

    void RequireReplaceable(const ProfileOptions& options, bool replaces)
    {
        if (!mIsThere) {
            return;
        }
        if (!mIsEmpty && !mHasProfile) {
            throw RestoreError(mPath + " is a folder with other things in it: name another with --profile");
        }
        mLock = std::make_unique<ProfileFolder>(mPath, options.wait);
        if (!replaces && mHasProfile && HasActivities(options)) {
            throw RestoreError("the profile " + mPath
                + " has something in it: name another with --profile, or give --replace, which keeps it beside the "
                  "restored one");
        }
    }

private:
    static bool HasActivities(ProfileOptions options)
    {
        options.warn = nullptr;
        try {
            return CountActivities(ReadProfile(options)) > 0;
        } catch (const ProfileError&) {
            return true; // nobody can tell
        }
    }

    std::string mPath;
    bool mIsThere = false;
    bool mIsEmpty = true;
    bool mHasProfile = false;
    std::unique_ptr<ProfileFolder> mLock;
};

/// Fails unless mailbox and registry can be opened, each with a message that names the backup in the file's place.
void RequireUsable(const UnpackedFolder& folder, const std::string& backup)
{
    const auto mailboxPath = folder.PathOf(MailboxFileName);
    const auto registryPath = folder.PathOf(RegistryFileName);
    const auto refuse = [&](const std::string& reason) {
        throw RestoreError(backup + " can't be restored: " + Replace(reason, folder.Path().Text() + "/", "its "));
    };
    if (!StatusAt(mailboxPath, Links::Taken)) {
        refuse("there is no mailbox in it: give a file that \"tempodial backup\" has made");
    }
    try {
        const auto mailbox = OpenMailboxForReading(
            mailboxPath.Text(), MakeRef<IcuLocaleFormats>("en_US"), MakeRef<ExpatXmlFactory>(), false);
        if (!IsSound(mailbox)) {
            refuse("its mailbox is damaged: give another backup");
        }
        TomlRegistry(registryPath.Text()).RequireSound(ProductKey, { ProjectsValue });
    } catch (const MailboxError& error) {
        refuse(error.what());
    } catch (const RegistryFileError& error) {
        refuse(error.what());
    }
    for (const auto* journal : { "-wal", "-shm" }) {
        Discard(NativePath::Exactly(mailboxPath.Text() + journal));
    }
}

/// A path beside the profile that nothing stands at, by the moment.
NativePath PlaceForFormer(const std::string& path, Date now)
{
    const auto parts = now.ToParts();
    const auto twoDigits = [](std::int32_t number) {
        return (number < 10 ? "0" : "") + std::to_string(number); // NOLINT(readability-magic-numbers): two digits
    };
    const auto first = path + ".old-" + now.DayKey() + "-" + twoDigits(parts.hour) + twoDigits(parts.minute)
        + twoDigits(parts.second);
    auto place = NativePath::Exactly(first);
    for (int next = 2; StatusAt(place, Links::Taken); ++next) {
        place = NativePath::Exactly(first + "-" + std::to_string(next));
    }
    return place;
}

/// Puts the unpacked folder in the profile's place.
std::optional<std::string> PutInPlace(UnpackedFolder& folder, const FormerProfile& former, Date now)
{
    const auto place = NativePath::Exactly(former.Path());
    std::optional<std::string> kept;
    if (former.IsThere()) {
        const auto beside = PlaceForFormer(former.Path(), now);
        TakePlaceOf(folder.Path(), place, beside);
        folder.Keep();
        if (former.IsEmpty()) {
            RemoveFolder(beside);
        } else {
            kept = beside.Text();
        }
    } else {
        RenameToAbsent(folder.Path(), place);
        folder.Keep();
    }
    FolderDescriptor(NativePath::Exactly(place.Folder())).Sync();
    return kept;
}

}

RestoredProfile RestoreProfile(const ProfileOptions& options, const std::string& backup, bool replaces, Date now)
{
    try {
        const ArchiveFile archive { NativePath(backup) };
        FormerProfile former(options);
        former.RequireReplaceable(options, replaces);
        archive.RequireWhole();
        const auto place = NativePath::Exactly(former.Path());
        MakeFoldersAbove(place);
        UnpackedFolder folder(place.Beside("." + place.Name() + ".restored"), BackupFolderName, IsOfProcesses);
        archive.Unpack(folder);
        folder.Finish();
        RequireUsable(folder, backup);
        const auto files = folder.Files();
        return { former.Path(), files, PutInPlace(folder, former, now) };
    } catch (const ArchiveError& error) {
        throw RestoreError(
            backup + " can't be restored: " + error.what() + ": give a file that \"tempodial backup\" has made");
    } catch (const Failure& failure) {
        throw RestoreError(backup + " couldn't be restored: " + failure.Description()
            + ": see to the file, and to the disk and the folder of the profile");
    }
}

}
