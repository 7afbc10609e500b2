#pragma once

#include "track/ControlServer.h"
#include "track/DesktopChoice.h"
#include "track/ProfileRecorder.h"
#include "track/ProgramNames.h"
#include "track/TrackClock.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace tempodial {

/// Where and in what time a recorder runs.
struct TrackOptions
{
    /// The profile's folder.
    std::string profile;
    std::optional<Date> now;
    int speed = 1;
};

/// In what surroundings sources work at a speed.
WatchSettings WatchSettingsAt(const TrackClock& clock);
/// What a desktop and a session tell at this moment, by the clock of the recorder.
Observation Observed(DesktopSource* desktop, SessionSource* session, ProgramNames& names, const TrackClock& clock);

/// A run of the recorder: waits for what desktop, session, clock and other programs have to say, until a signal ends
/// it.
class TrackRun
{
public:
    /// Takes who is told of what people should know. Fails as `ProfileRecorder` does, and with `TrackError` where no
    /// desktop can be watched.
    TrackRun(const TrackOptions& options, const std::function<void(const std::string&)>& warn);

    /// The desktop that is watched.
    const std::string& DesktopName() const { return mDesktop.name; }
    /// Runs until it is told to end.
    void Run();

private:
    struct Waits;

    void Observe();
    void Tick();
    void LoseDesktop();

    TrackClock mClock;
    std::function<void(const std::string&)> mWarn;
    ProfileRecorder mRecorder;
    WatchSettings mSettings;
    ChosenDesktop mDesktop;
    std::unique_ptr<SessionSource> mSession;
    ProgramNames mNames;
    ControlServer mServer;
    /// When a desktop is looked for again, since there is none; on the clock that goes on while the machine sleeps.
    std::int64_t mNextTrial = 0;
    bool mLetsSleep = true;
};

}
