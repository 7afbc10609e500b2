#include "track/ProfileRecorder.h"

#include "base/Failure.h"
#include "base/IsoDate.h"
#include "base/SettingsFile.h"
#include "base/TrackerFile.h"
#include "host/files/PathOperations.h"
#include "host/files/ReplacementFile.h"
#include "track/TrackError.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <thread>
#include <utility>

namespace tempodial {

namespace {

/// How long after it was kept the state is again; ticks come a little early or late.
constexpr std::int64_t StateInterval = 60000 - 7500;
constexpr std::size_t LargestState = std::size_t { 16 } << 20;
/// What may be wrong.
constexpr auto FileTrouble = "file";
constexpr auto StateTrouble = "state";
constexpr auto SettingsTrouble = "settings";
constexpr auto LockFileName = "/track.lock";
constexpr auto StateFileName = "/track.state";

std::string MadeDataFolder(const std::string& profile)
{
    auto folder = profile + "/" + TrackerFolderName;
    const auto path = NativePath::Exactly(folder);
    MakeFoldersAbove(path);
    try {
        MakeFolder(path);
    } catch (const SystemFailure& failure) {
        if (!failure.Is(Error::FileExists)) {
            throw TrackError("can't make the folder " + folder + ": " + failure.Reason()
                + ": name another profile with --profile, or see to its permissions");
        }
    }
    return folder;
}

FileLock TakenLock(const std::string& path)
{
    constexpr int Trials = 10;
    constexpr std::chrono::milliseconds BetweenTrials(20);
    try {
        FileLock lock(NativePath::Exactly(path));
        for (int trial = 0; trial < Trials; ++trial) {
            if (lock.Try()) {
                return lock;
            }
            // It may be held for a moment by who only looks whether a recorder runs.
            std::this_thread::sleep_for(BetweenTrials);
        }
    } catch (const Failure& failure) {
        throw TrackError(
            path + " can't be locked: " + failure.Description() + ": see to the permissions of the profile");
    }
    throw RecorderRuns("a recorder of this profile is running: \"tempodial track status\" shows what it does");
}

std::string StateText(const std::string& path)
{
    try {
        return FileDescriptor(NativePath::Exactly(path), Opening::Reading).ReadAll(LargestState);
    } catch (const Failure&) {
        return {}; // absent, or nothing to go on with
    }
}

/// Replaces the state where it lies, in one write, which a kill can't part: a file that takes another's place waits for
/// the disk. What is left of a longer one becomes empty lines.
void KeepText(const std::string& path, std::string text)
{
    const auto native = NativePath::Exactly(path);
    if (!StatusAt(native, Links::Taken)) {
        ReplacementFile file(native);
        file.Write(text);
        file.TakePlace();
        return;
    }
    const FileDescriptor file(native, Opening::Writing);
    file.RequireWritable();
    text.resize(std::max(text.size(), static_cast<std::size_t>(file.Status().size)), '\n');
    file.Write(text);
}

std::int64_t MidnightOf(const TrackMoment& moment)
{
    return moment.ToDate().Day().Seconds();
}

std::string MomentText(std::int64_t local)
{
    return IsoMoment(Date::FromSeconds(local / MillisecondsOfSecond));
}

ControlMessage Trouble(const std::string& message)
{
    ControlMessage answer;
    answer.Set("error", message);
    return answer;
}

}

TrackState StateOfRecorder(const std::string& dataFolder)
{
    return TrackState::Of(StateText(dataFolder + StateFileName));
}

bool IsRecorderRunning(const std::string& dataFolder)
{
    const auto path = NativePath::Exactly(dataFolder + LockFileName);
    try {
        return StatusAt(path, Links::Taken) && !FileLock(path).Try();
    } catch (const Failure&) {
        return false; // nobody could take it
    }
}

std::string TakenLines(const std::string& dayKey)
{
    return "taken" + dayKey;
}

std::optional<std::int64_t> NumberOf(const ControlMessage& message, const std::string& name)
{
    const auto text = message.Get(name);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

ProfileRecorder::ProfileRecorder(
    const std::string& profile, const TrackMoment& now, std::function<void(const std::string&)> warn)
    : mFolder(MadeDataFolder(profile))
    , mLock(TakenLock(mFolder + LockFileName))
    , mWarn(std::move(warn))
    , mSettings(profile)
    , mWriter(mFolder)
    , mRecorder(mWriter, mSettings.Read(), mWarn)
{
    try {
        mKeptState = StateText(mFolder + StateFileName);
        const auto midnight = MidnightOf(now);
        if (const auto until = mWriter.WrittenUntil(midnight); until > 0) {
            mLastWritten = Date::FromSeconds(midnight + until);
        }
        if (!mKeptState.empty()) {
            const auto state = TrackState::Of(mKeptState);
            mWriter.Restore(state.unsaved);
            mRecorder.Restore(state, now);
        }
        mKeptAt = now.boot;
    } catch (const Failure& failure) {
        throw TrackError("today's tracker file in " + mFolder + " can't be read: " + failure.Description()
            + ": see to its permissions, or move it away");
    }
}

void ProfileRecorder::Observe(const TrackMoment& now, Observation seen)
{
    seen.isLocked = seen.isLocked || mIsBlind;
    try {
        mRecorder.Observe(now, seen);
    } catch (const Failure& failure) {
        Complain(FileTrouble,
            "the tracker file of the day can't be read: " + failure.Description()
                + ": see to its permissions, or move it away");
    }
    Save(now);
}

void ProfileRecorder::Tick(const TrackMoment& now)
{
    if (mIsBlind || mSettings.HasChanged()) {
        ReadSettings();
    }
    if (IsStateDue(now)) {
        mKeptAt = now.boot;
        KeepState();
    }
}

bool ProfileRecorder::IsStateDue(const TrackMoment& now) const
{
    return now.boot - mKeptAt >= StateInterval;
}

void ProfileRecorder::KeepState()
{
    (void)WriteState(false);
}

bool ProfileRecorder::WriteState(bool isToLast)
{
    auto state = mRecorder.State();
    state.unsaved = mWriter.Unsaved();
    auto text = state.Text();
    if (text == mKeptState) {
        return true;
    }
    try {
        if (isToLast) {
            ReplacementFile file(NativePath::Exactly(mFolder + StateFileName));
            file.Write(text);
            file.Commit();
        } else {
            KeepText(mFolder + StateFileName, text);
        }
        mKeptState = std::move(text);
        mComplaints.erase(StateTrouble);
        return true;
    } catch (const Failure& failure) {
        Complain(StateTrouble,
            mFolder + StateFileName + " can't be written: " + failure.Description()
                + ": see to the disk of the profile");
        return false;
    }
}

ControlMessage ProfileRecorder::Kept(ControlMessage answer)
{
    return WriteState(true) ? std::move(answer) : Trouble(mComplaints[StateTrouble]);
}

bool ProfileRecorder::End(const TrackMoment& now)
{
    mRecorder.End(now);
    Save(now);
    const bool isKept = WriteState(true);
    if (!mWriter.HasUnsaved()) {
        return isKept;
    }
    mWarn(isKept ? "what couldn't be written waits in " + mFolder + StateFileName + " for the next start"
                 : "what couldn't be written is lost");
    return false;
}

ControlMessage ProfileRecorder::Answer(const ControlMessage& request, const TrackMoment& now)
{
    const auto what = request.Get("do");
    try {
        if (what == "status") {
            return Status(now);
        }
        if (what == "pause") {
            return Pause(request, now);
        }
        if (what == "resume") {
            mRecorder.Resume();
            return Kept(Status(now));
        }
        if (what == "project") {
            return Project(request);
        }
        if (what == "forget") {
            return Forget(request, now);
        }
    } catch (const Failure& failure) {
        return Trouble("the tracker file of the day can't be changed: " + failure.Description()
            + ": see to the disk and the permissions of the profile");
    }
    return Trouble("the recorder that runs doesn't know this: start it again, since it is another version");
}

void ProfileRecorder::ReadSettings()
{
    try {
        mRecorder.SetViews(mSettings.Read());
        mIsBlind = false;
        mComplaints.erase(SettingsTrouble);
    } catch (const SettingsFileError& error) {
        Complain(SettingsTrouble, std::string(error.what()) + "; until then nothing is recorded");
        mIsBlind = true;
    }
}

void ProfileRecorder::Save(const TrackMoment& now)
{
    if (!mWriter.HasUnsaved()) {
        return;
    }
    try {
        mWriter.Save(now.offset);
        mLastWritten = now.ToDate();
        mComplaints.erase(FileTrouble);
    } catch (const Failure& failure) {
        Complain(FileTrouble,
            "the tracker file of the day can't be written: " + failure.Description()
                + ": see to the disk of the profile; what waits is written then");
    }
}

void ProfileRecorder::Complain(const std::string& about, const std::string& message)
{
    auto& last = mComplaints[about];
    if (last != message) {
        last = message;
        mWarn(message);
    }
}

ControlMessage ProfileRecorder::Status(const TrackMoment& now)
{
    ControlMessage answer;
    answer.Set("now", MomentText(now.local));
    answer.Set("idle", mRecorder.IsIdle() ? "1" : "0");
    answer.Set("since", MomentText(mRecorder.Since()));
    answer.Set("paused", mRecorder.IsPaused() || mIsBlind ? "1" : "0");
    if (const auto until = mRecorder.PausedUntil(now)) {
        answer.Set("pausedUntil", MomentText(*until));
    }
    if (const auto view = mRecorder.InFront(); view && !mIsBlind) {
        answer.Set("program", view->program);
        answer.Set("kind", std::to_string(view->kind));
    }
    answer.Set("slots", std::to_string(mWriter.SlotsOn(MidnightOf(now))));
    if (mLastWritten) {
        answer.Set("lastWritten", IsoMoment(*mLastWritten));
    }
    return answer;
}

ControlMessage ProfileRecorder::Pause(const ControlMessage& request, const TrackMoment& now)
{
    mRecorder.Pause(now, NumberOf(request, "for"));
    Save(now);
    return Kept(Status(now));
}

ControlMessage ProfileRecorder::Project(const ControlMessage& request)
{
    if (request.Has("name")) {
        mRecorder.SetProject(ProjectText(request.Get("name")));
    }
    ControlMessage answer;
    answer.Set("name", mRecorder.Project());
    return request.Has("name") ? Kept(std::move(answer)) : answer;
}

ControlMessage ProfileRecorder::Forget(const ControlMessage& request, const TrackMoment& now)
{
    const auto length = NumberOf(request, "last");
    if (!length) {
        return Trouble("the recorder that runs doesn't know this: start it again, since it is another version");
    }
    const auto from = now.local - *length;
    mRecorder.Forget(from);
    ErasedLines all;
    for (auto day = Date::FromSeconds(from / MillisecondsOfSecond).Day(); day <= now.ToDate(); day = day.AddDays(1)) {
        const auto taken = NumberOf(request, TakenLines(day.DayKey()));
        if (!taken && mWriter.HasFile(day.Seconds())) {
            continue; // nobody has looked what imports have taken of it
        }
        const auto erased
            = mWriter.Erase(day.Seconds(), from / MillisecondsOfSecond - day.Seconds(), taken.value_or(0));
        all.forgotten += erased.forgotten;
        all.kept += erased.kept;
    }
    ControlMessage answer;
    answer.Set("forgotten", std::to_string(all.forgotten));
    answer.Set("kept", std::to_string(all.kept));
    return Kept(std::move(answer));
}

}
