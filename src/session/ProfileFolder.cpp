#include "session/ProfileFolder.h"

#include "host/files/PathOperations.h"
#include "session/ProductFacts.h"
#include "session/ProfileError.h"
#include "session/ProfilePlace.h"

#include <cstdlib>
#include <optional>
#include <thread>

namespace tempodial {

namespace {

/// How long to wait before the lock is tried again.
constexpr std::chrono::milliseconds BetweenTrials(50);

std::string Environment(const char* name)
{
    const auto* value = std::getenv(name);
    return value ? value : "";
}

/// Makes the folder when it is absent.
void Make(const NativePath& folder)
{
    MakeFoldersAbove(folder);
    try {
        MakeFolder(folder);
    } catch (const SystemFailure& failure) {
        if (!failure.Is(Error::FileExists)) {
            throw ProfileError("can't make the profile folder " + folder.Text() + ": " + failure.Reason()
                + ": name another with --profile, or see to its parent folder");
        }
    }
}

/// What the message calls the process that holds the folder.
std::string NameOf(const std::optional<FolderDescriptor::LockHolder>& holder)
{
    return holder ? holder->program + " (process " + holder->process + ")" : "another process";
}

/// What to do about that process.
std::string AdviceFor(const std::optional<FolderDescriptor::LockHolder>& holder)
{
    return holder && holder->program == DesktopProgramName
        ? "the desktop program has it open: it imports by itself; close it, or wait with --wait SECONDS"
        : "wait until that has ended, or name another with --profile";
}

}

ProfileFolder::ProfileFolder(const std::string& path, std::chrono::seconds wait)
    : mPath(ProfilePlace::UsablePath(path))
{
    Open();
    Lock(wait);
    CloseToOthers();
}

void ProfileFolder::Open()
{
    const auto folder = NativePath::Exactly(mPath);
    Make(folder);
    try {
        mFolder.emplace(folder);
    } catch (const SystemFailure& failure) {
        throw ProfileError("can't open the profile folder " + folder.Text() + ": " + failure.Reason()
            + ": name another with --profile, or see to its permissions");
    }
}

void ProfileFolder::Lock(std::chrono::seconds wait)
{
    const auto end = std::chrono::steady_clock::now() + wait;
    try {
        while (true) {
            if (mFolder->TryLock()) {
                if (mFolder->IsAt(NativePath::Exactly(mPath))) {
                    return;
                }
                // Another folder has taken its place meanwhile, from a backup.
                Open();
                continue;
            }
            if (std::chrono::steady_clock::now() >= end) {
                const auto holder = mFolder->Holder();
                throw ProfileInUse(
                    "the profile " + mPath + " is in use by " + NameOf(holder) + ": " + AdviceFor(holder));
            }
            std::this_thread::sleep_for(BetweenTrials);
        }
    } catch (const SystemFailure& failure) {
        throw ProfileError("can't lock the profile folder " + mPath + ": " + failure.Reason()
            + ": put it on a file system that knows locks");
    }
}

void ProfileFolder::CloseToOthers() const
{
    // A folder that holds other things too, such as one named by mistake, keeps its mode; our files are closed anyway.
    if (mFolder->IsOpenToOthers() && (mFolder->IsEmpty() || ProfilePlace::HasProfileIn(mPath))) {
        mFolder->CloseToOthers();
    }
}

std::string ProfileFolder::Default()
{
    if (auto named = Environment("TEMPODIAL_PROFILE"); !named.empty()) {
        return named;
    }
    // The base folder counts only when it is absolute.
    if (auto data = Environment("XDG_DATA_HOME"); !data.empty() && data.front() == '/') {
        return data + "/tempodial";
    }
    if (auto home = Environment("HOME"); !home.empty()) {
        return home + "/.local/share/tempodial";
    }
    throw ProfileError("there is no home folder for the profile: name a folder with --profile");
}

}
