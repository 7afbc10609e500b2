#include "session/KeepingFileSystem.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/files/PathOperations.h"
#include "session/ProductFacts.h"
#include "session/ProfileSettings.h"
#include "session/ReachedFile.h"
#include "session/TrackerDay.h"

#include <utility>

namespace tempodial {

namespace {

/// What stands in the names of files that go by their age.
constexpr auto OfTracker = "tracker_";

}

KeepingFileSystem::KeepingFileSystem(
    std::string temporaryFolder, Ref<Mailbox> mailbox, std::optional<std::int32_t> retention)
    : HostFileSystem(std::move(temporaryFolder))
    , mMailbox(std::move(mailbox))
    , mDaysYounger(retention.value_or(LongestRetention) - UsualRetention)
{
}

Folder KeepingFileSystem::GetFolder(const std::string& path)
{
    auto folder = HostFileSystem::GetFolder(path);
    if (mDaysYounger == 0) {
        return folder;
    }
    for (auto& file : folder.files) {
        const auto dayKey = TrackerDay(file.name);
        // What no import has reached to its end doesn't go before its time.
        const bool isMeant
            = mDaysYounger > 0 || dayKey.empty() || ReachedFile::Of(*this, mMailbox, file.path, dayKey).IsWhole();
        if (file.name.find(OfTracker) != std::string::npos && isMeant) {
            file.dateCreated = file.dateCreated.AddDays(mDaysYounger);
        }
    }
    return folder;
}

void KeepingFileSystem::DeleteFile(const std::string& path, bool force)
{
    const NativePath native(path);
    const auto status = StatusAt(native, Links::Taken);
    const auto dayKey = TrackerDay(native.Name());
    // By force goes what was imported just now; what is read-only stays in any case.
    const bool isInQuestion
        = !force && !dayKey.empty() && status && status->kind == FileStatus::Kind::File && status->isWritable;
    if (isInQuestion && !ReachedFile::Of(*this, mMailbox, path, dayKey).IsWhole()) {
        Keep(path);
    } else {
        HostFileSystem::DeleteFile(path, force);
    }
}

void KeepingFileSystem::Keep(const std::string& path)
{
    const NativePath native(path);
    const auto folder = BuildPath(native.Folder(), KeptFolderName);
    if (!FolderExists(folder)) {
        CreateFolder(folder);
    }
    const auto first = BuildPath(folder, native.Name());
    auto target = first;
    for (int next = 2; StatusAt(NativePath(target), Links::Taken); ++next) {
        target = first + "." + std::to_string(next);
    }
    MoveFile(path, target);
    mKept.push_back(target);
}

}
