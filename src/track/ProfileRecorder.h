#pragma once

#include "host/files/FileLock.h"
#include "track/ControlMessage.h"
#include "track/DayWriter.h"
#include "track/Recorder.h"
#include "track/TrackSettings.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace tempodial {

/// The recorder of a profile, with its files: the days', the state that a later run goes on with, and the settings. It
/// is the only one of the profile while it lives.
class ProfileRecorder
{
public:
    /// Takes the profile's folder, made when it is absent, the present moment, and who is told of what people should
    /// know. Fails with `TrackError`, `RecorderRuns` and `SettingsFileError`.
    ProfileRecorder(const std::string& profile, const TrackMoment& now, std::function<void(const std::string&)> warn);

    /// What is seen now; what is ready then is written.
    void Observe(const TrackMoment& now, Observation seen);
    /// What is done at each tick: settings that have changed are read, and once a minute the state is kept.
    void Tick(const TrackMoment& now);
    /// True when the next tick keeps the state.
    bool IsStateDue(const TrackMoment& now) const;
    /// Keeps the state now, as far as the disk takes it.
    void KeepState();
    /// Writes what waits, since the run ends; false when not all of it could be.
    bool End(const TrackMoment& now);
    /// Does what a program asks for, and answers.
    ControlMessage Answer(const ControlMessage& request, const TrackMoment& now);

private:
    void ReadSettings();
    void Save(const TrackMoment& now);
    /// True when the state is kept, on the disk if it is to last.
    bool WriteState(bool isToLast);
    /// The answer, once the state is kept that goes with it; else what is wrong.
    ControlMessage Kept(ControlMessage answer);
    void Complain(const std::string& about, const std::string& message);
    ControlMessage Status(const TrackMoment& now);
    ControlMessage Pause(const ControlMessage& request, const TrackMoment& now);
    ControlMessage Project(const ControlMessage& request);
    ControlMessage Forget(const ControlMessage& request, const TrackMoment& now);

    std::string mFolder;
    FileLock mLock;
    std::function<void(const std::string&)> mWarn;
    TrackSettings mSettings;
    DayWriter mWriter;
    Recorder mRecorder;
    /// True while the settings can't be read, and nothing may be recorded.
    bool mIsBlind = false;
    /// The last complaint about each thing that is wrong, so that none is repeated.
    std::map<std::string, std::string> mComplaints;
    std::string mKeptState;
    /// When the state was kept, on the clock that goes on while the machine sleeps.
    std::int64_t mKeptAt = 0;
    std::optional<Date> mLastWritten;
};

/// True when a recorder writes into a data folder.
bool IsRecorderRunning(const std::string& dataFolder);
/// What the recorder of a profile has kept, by the folder of its data; nothing when none ever ran.
TrackState StateOfRecorder(const std::string& dataFolder);

/// What a message calls the lines of a day's file, behind its heading, that imports have taken.
std::string TakenLines(const std::string& dayKey);

/// A whole number in a message; nothing when it holds none.
std::optional<std::int64_t> NumberOf(const ControlMessage& message, const std::string& name);

}
