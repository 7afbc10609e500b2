#include "session/TrackerFiles.h"

#include "base/Failure.h"
#include "host/files/FileDescriptor.h"
#include "host/system/LocalTime.h"
#include "session/OpenProfile.h"
#include "session/ReachedFile.h"
#include "session/TrackerDay.h"

#include <algorithm>

namespace tempodial {

namespace {

std::vector<File> FilesIn(FileSystemObject& files, const std::string& folder)
{
    try {
        return files.GetFolder(folder).files;
    } catch (const Failure& failure) {
        if (failure.Is(Error::PathNotFound)) {
            return {};
        }
        throw;
    }
}

std::string FirstDay(Date now)
{
    return now.AddDays(-SavedDataDays).DayKey();
}

/// The day of a tracker's file, finished or not, empty for another.
std::string AnyDay(const std::string& name)
{
    const auto begin = FinishedTrackerFileName("").find(".out");
    if (name.size() > begin && name.starts_with(FinishedTrackerFileName("").substr(0, begin))) {
        return TrackerDay(TrackerFilePrefix + name.substr(begin));
    }
    return TrackerDay(name);
}

Date LastWrite(const std::string& path)
{
    return LocalTime().At(FileDescriptor(NativePath(path), Opening::Reading).ModificationTime().tv_sec);
}

std::optional<TrackerFiles::Written> Latest(const std::vector<File>& files)
{
    const File* latest = nullptr;
    for (const auto& file : files) {
        if (const auto day = AnyDay(file.name); !day.empty() && (latest == nullptr || day > AnyDay(latest->name))) {
            latest = &file;
        }
    }
    return latest == nullptr ? std::nullopt
                             : std::optional(TrackerFiles::Written { latest->name, LastWrite(latest->path) });
}

}

std::vector<std::string> TooOldFiles(FileSystemObject& files, const std::string& folder, Date now)
{
    std::vector<std::string> names;
    for (const auto& file : FilesIn(files, folder)) {
        if (const auto day = TrackerDay(file.name); !day.empty() && day < FirstDay(now)) {
            names.push_back(file.name);
        }
    }
    return names;
}

TrackerFiles TrackerFiles::Of(const Profile& profile)
{
    auto& system = *profile.Surroundings().fileSystem;
    const auto now = profile.Clock()->Now();
    const auto files = FilesIn(system, profile.DataFolder());
    TrackerFiles found { .latest = Latest(files), .waiting = {}, .tooOld = {} };
    for (const auto& file : files) {
        const auto day = TrackerDay(file.name);
        if (!day.empty() && day >= FirstDay(now) && day <= now.DayKey()
            && ReachedFile::Of(system, profile.Mailbox(), file.path, day).hasMore) {
            found.waiting.push_back(file.name);
        }
    }
    found.tooOld = TooOldFiles(system, profile.DataFolder(), now);
    for (const auto& kept : FilesIn(system, DataPath(profile, KeptFolderName))) {
        found.tooOld.push_back(kept.name);
    }
    std::sort(found.tooOld.begin(), found.tooOld.end());
    return found;
}

}
