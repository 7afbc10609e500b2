#include "cli/OlderDays.h"

#include "base/Failure.h"
#include "cli/Interruption.h"
#include "host/system/HostFileSystem.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "session/TrackerDay.h"

#include <algorithm>

namespace tempodial {

namespace {

std::vector<File> FilesOf(FileSystemObject& files, const std::string& folder)
{
    try {
        return files.GetFolder(folder).files;
    } catch (const Failure&) {
        // Of a folder that can't be read the import tells.
        return {};
    }
}

/// The day key in the name of a tracker's file, also of one that was kept beside another of that day.
std::string DayOfLiveOrKept(const std::string& name)
{
    return TrackerDay(name.substr(0, name.rfind(".out.") == std::string::npos ? name.size() : name.rfind('.')));
}

/// Puts the first of a day's files that were kept in the place of the live one; false when there is none.
bool TakeBack(ConnectedRun& run, const std::string& dayKey)
{
    auto& files = *run.Host().fileSystem;
    for (const auto& kept : FilesOf(files, run.DataPath(KeptFolderName))) {
        if (DayOfLiveOrKept(kept.name) != dayKey) {
            continue;
        }
        try {
            files.MoveFile(kept.path, run.DataPath(TrackerFileName(dayKey)));
            return true;
        } catch (const Failure& failure) {
            run.Complain(kept.path + " couldn't be taken from there: " + failure.Description()
                + ": see to the data folder and run the command again");
            return false;
        }
    }
    return false;
}

/// Imports the live file of a day on that day, and finishes it on the next.
void ImportLive(const ConnectedRun& run, Date day, const OlderDays::Sync& sync)
{
    constexpr std::int64_t LastSecond = 24 * 60 * 60 - 1;
    run.Profile().Clock()->Set(day.AddSeconds(LastSecond));
    sync(0);
    if (!Interruption::IsRequested()) {
        run.Profile().Clock()->Set(day.AddDays(1));
        sync(1);
    }
}

/// What the history holds, nothing when it can't be read or is empty.
std::optional<std::string> HistoryOf(const ConnectedRun& run)
{
    try {
        return run.Host().fileSystem->OpenTextFile(run.DataPath(HistoryFileName), OpenMode::Reading, false)->ReadAll();
    } catch (const Failure&) {
        return std::nullopt;
    }
}

void WriteHistory(ConnectedRun& run, const std::string& text)
{
    const auto path = run.DataPath(HistoryFileName);
    try {
        const auto stream = run.Host().fileSystem->OpenTextFile(path, OpenMode::Writing, true);
        stream->Write(text);
        stream->Close();
    } catch (const Failure& failure) {
        run.Complain(path + " couldn't be written: " + failure.Description()
            + ": see to the profile's disk and run the command again");
    }
}

}

OlderDays::OlderDays(const Options& options, Date since, Date now)
{
    const auto folder = ProfilePath(options) + "/" + DataFolderName;
    Find(folder, since, now);
    Find(folder + "/" + KeptFolderName, since, now);
    std::sort(mDays.begin(), mDays.end());
    mDays.erase(std::unique(mDays.begin(), mDays.end()), mDays.end());
}

Options OlderDays::Started(Options options) const
{
    if (!mDays.empty()) {
        options.now = mDays.front();
    }
    return options;
}

void OlderDays::Import(ConnectedRun& run, const Sync& sync) const
{
    const auto history = HistoryOf(run);
    // They may be older than the days that are remembered, and are read once more when they are finished.
    run.Profile().Journal()->SetForgets(false);
    auto& files = *run.Host().fileSystem;
    for (const auto day : mDays) {
        const auto key = day.DayKey();
        const auto live = run.DataPath(TrackerFileName(key));
        while (!Interruption::IsRequested() && (files.FileExists(live) || TakeBack(run, key))) {
            ImportLive(run, day, sync);
            if (files.FileExists(live)) {
                break;
            }
        }
    }
    if (history) {
        // A sync of an older day has put that day in the place of the latest.
        WriteHistory(run, *history);
    }
}

void OlderDays::Find(const std::string& folder, Date since, Date now)
{
    HostFileSystem files(folder);
    for (const auto& file : FilesOf(files, folder)) {
        const auto key = DayOfLiveOrKept(file.name);
        if (key.empty() || key < since.DayKey() || key >= now.AddDays(-SavedDataDays).DayKey()) {
            continue;
        }
        if (const auto day = DayOfKey(key); day.DayKey() == key) {
            mDays.push_back(day);
        }
    }
}

}
