#include "cli/ImportRun.h"

#include "base/Failure.h"
#include "base/Fnv1a.h"
#include "cli/Interruption.h"
#include "host/settings/TomlSettings.h"
#include "host/store/LineMemory.h"
#include "host/system/IcuTimeZone.h"
#include "review/ActivityReader.h"
#include "session/ProductFacts.h"
#include "session/TrackerDay.h"
#include "slots/DayFile.h"

#include <algorithm>

namespace tempodial {

namespace {

/// What the heading of a file says that an import has written.
std::string HeadingEnd(const std::string& mark)
{
    return ", imported" + (mark.empty() ? "" : " " + mark);
}

/// A day's file before it has its name.
constexpr auto UnfinishedName = "imported-day.tmp";

/// Minutes by which local time is before UTC at noon of a day.
int OffsetOf(Date day)
{
    constexpr auto Noon = std::int64_t { 12 } * 3600;
    constexpr std::int64_t SecondsOfMinute = 60;
    IcuTimeZone zone;
    return static_cast<int>(zone.OffsetAt(zone.MomentOf(day.AddSeconds(Noon))) / SecondsOfMinute);
}

}

Presence TimeInLog(const Profile& profile, Date first, Date last)
{
    Presence time;
    for (const auto& activity : ActivitiesTouching(profile, { first, last })) {
        time.Add(activity.start.Seconds(), activity.end.Seconds());
    }
    return time;
}

ImportRun::ImportRun(const Options& options)
    : mRun(options)
    , mStart(mRun.Profile().Clock()->Now())
    , mLedger(ReadSettingsFile(mRun.DataPath(LedgerFileName)))
{
    ClosePlanned();
}

void ImportRun::AsStep(const std::function<void()>& work)
{
    mRun.AsImportStep([this](const std::string& dayKey) { return mPlannedDays.contains(dayKey); }, work);
}

Date ImportRun::Now() const
{
    const auto gone = std::chrono::steady_clock::now() - mStartedAt;
    return mStart.AddSeconds(std::chrono::duration_cast<std::chrono::seconds>(gone).count());
}

std::vector<Date> ImportRun::WaitingDays() const
{
    std::vector<Date> days;
    if (mRun.Host().fileSystem->FolderExists(mRun.DataFolder())) {
        for (const auto& file : mRun.Host().fileSystem->GetFolder(mRun.DataFolder()).files) {
            if (const auto key = TrackerDay(file.name); !key.empty() && DayOfKey(key) < mStart.Day()) {
                days.push_back(DayOfKey(key));
            }
        }
    }
    std::sort(days.begin(), days.end());
    return days;
}

bool ImportRun::IsWaiting(Date day) const
{
    return mRun.Host().fileSystem->FileExists(mRun.DataPath(TrackerFileName(day.DayKey())));
}

void ImportRun::SyncUpTo(Date today)
{
    const auto now = Now();
    mRun.Profile().Clock()->Set(std::min(today, now));
    mRun.AddIn().SyncData(SavedDataDays, true);
    mRun.Profile().Clock()->Set(Now());
}

std::vector<Date> ImportRun::SyncWaiting()
{
    if (!mPlannedDays.empty()) {
        TrySave(); // before the files are gone that tell what became of the plan
    }
    auto waiting = WaitingDays();
    while (!waiting.empty() && waiting.front() < mStart.Day().AddDays(-SavedDataDays) && !Interruption::IsRequested()) {
        const auto today = waiting.front().AddDays(SavedDataDays);
        SyncUpTo(today);
        std::erase_if(waiting, [today](Date day) { return day < today; });
    }
    if (!Interruption::IsRequested()) {
        SyncUpTo(Now());
    }
    mRun.Profile().Mailbox()->MarkStatistics();
    return WaitingDays();
}

void ImportRun::ClosePlanned()
{
    for (const auto& [day, mark] : mLedger.Planned()) {
        const auto key = day.DayKey();
        const auto end = HeadingEnd(mark);
        mPlannedDays.insert(key);
        // A file that has its name is imported, now if it wasn't yet. A plan whose file never had it was never carried
        // out.
        mLedger.Close(day,
            HeadingOf(TrackerFileName(key)).ends_with(end) || HeadingOf(FinishedTrackerFileName(key)).ends_with(end));
    }
}

std::string ImportRun::HeadingOf(const std::string& name) const
{
    try {
        return mRun.Host().fileSystem->OpenTextFile(mRun.DataPath(name), OpenMode::Reading, false)->ReadLine();
    } catch (const Failure&) {
        return {};
    }
}

std::string ImportRun::MarkOf(Date day, const PlannedDay& planned) const
{
    // The same lines may have been written before, and were deleted since.
    Fnv1a hash(HeadingOf(FinishedTrackerFileName(day.DayKey())));
    for (const auto& line : planned.lines) {
        hash.Add(line);
    }
    return std::to_string(hash.Hash());
}

void ImportRun::Write(ImportPlan::Days& days)
{
    Window window;
    for (auto& [day, planned] : days) {
        if (planned.lines.empty() || IsWaiting(day)) {
            continue;
        }
        if (!window.empty() && day >= window.front().first.AddDays(SavedDataDays)) {
            WriteWindow(window);
            window.clear();
        }
        window.emplace_back(day, &planned);
    }
    WriteWindow(window);
}

void ImportRun::WriteWindow(const Window& window)
{
    if (window.empty()) {
        return;
    }
    const bool goesOn = !mHasFailed && !Interruption::IsRequested();
    const auto written = goesOn ? WriteFiles(window) : 0;
    for (std::size_t i = written; i < window.size(); ++i) {
        mLedger.Close(window[i].first, false);
        window[i].second->LeaveUnwritten();
    }
    if (!goesOn) {
        return;
    }
    if (written > 0) {
        SyncUpTo(window.front().first.AddDays(SavedDataDays));
    }
    for (std::size_t i = 0; i < written; ++i) {
        if (!IsWaiting(window[i].first)) {
            mLedger.Close(window[i].first, true);
        }
    }
    TrySave();
}

std::size_t ImportRun::WriteFiles(const Window& window)
{
    std::size_t written = 0;
    try {
        for (const auto& [day, planned] : window) {
            mLedger.Plan(day, planned->written, MarkOf(day, *planned));
            mPlannedDays.insert(day.DayKey());
        }
        SaveLedger();
        for (const auto& [day, planned] : window) {
            WriteDay(day, *planned);
            ++written;
        }
    } catch (const CommandError& error) {
        Fail(error);
    }
    return written;
}

void ImportRun::TrySave()
{
    try {
        SaveLedger();
    } catch (const CommandError& error) {
        Fail(error);
    }
}

void ImportRun::Fail(const CommandError& error)
{
    // What fails once on a disk fails again, and is told once.
    if (!mHasFailed) {
        mRun.Complain(error.what());
    }
    mHasFailed = true;
}

void ImportRun::WriteDay(Date day, const PlannedDay& planned)
{
    auto& fileSystem = *mRun.Host().fileSystem;
    const auto path = mRun.DataPath(UnfinishedName);
    try {
        const auto stream = fileSystem.OpenTextFile(path, OpenMode::Writing, true);
        stream->WriteLine(DayFile::Heading(day, OffsetOf(day)) + HeadingEnd(MarkOf(day, planned)));
        for (const auto& line : KnownLines(day)) {
            stream->WriteLine(line);
        }
        for (const auto& line : planned.lines) {
            stream->WriteLine(line);
        }
        stream->Close();
        fileSystem.MoveFile(path, mRun.DataPath(TrackerFileName(day.DayKey())));
    } catch (const Failure& failure) {
        throw CommandError("the tracker file of " + day.DayKey() + " couldn't be written: " + failure.Description()
            + ": see to the profile's disk and run the import again");
    }
}

std::vector<std::string> ImportRun::KnownLines(Date day) const
{
    std::vector<std::string> lines;
    LineMemory memory(mRun.Profile().Mailbox());
    memory.BeginDay(day.DayKey(), 0);
    try {
        const auto finished = mRun.DataPath(FinishedTrackerFileName(day.DayKey()));
        const auto file = mRun.Host().fileSystem->OpenTextFile(finished, OpenMode::Reading, false);
        file->ReadLine();
        for (;;) {
            auto line = file->ReadLine();
            if (!memory.IsKnown(line)) {
                return {};
            }
            lines.push_back(std::move(line));
        }
    } catch (const Failure&) {
        // That was the last one, or there is no such file.
    }
    return lines;
}

void ImportRun::SaveLedger()
{
    const auto path = mRun.DataPath(LedgerFileName);
    try {
        auto& fileSystem = *mRun.Host().fileSystem;
        if (!fileSystem.FolderExists(mRun.DataFolder())) {
            fileSystem.CreateFolder(mRun.DataFolder());
        }
        const auto stream = fileSystem.OpenTextFile(path, OpenMode::Writing, true);
        stream->Write(mLedger.Text());
        stream->Close();
    } catch (const Failure& failure) {
        throw CommandError(path + " couldn't be written: " + failure.Description()
            + ": see to the profile's disk and run the import again");
    }
}

}
