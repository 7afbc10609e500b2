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
/// The time without input that a desktop tells, else a session, by the clock of the recorder; nothing when neither can.
std::optional<std::int64_t> IdleTime(DesktopSource* desktop, SessionSource* session, const TrackClock& clock);
/// What else they tell at this moment.
Observation Observed(DesktopSource* desktop, SessionSource* session, ProgramNames& names);

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
    /// Runs until it is told to end; false when not all that was recorded could be written.
    bool Run();

private:
    struct Waits;

    /// Takes what is seen at a moment. Asks for the last input, which costs an answer's time, or else goes by what was
    /// told last.
    void Observe(const TrackMoment& now, bool asks);
    void Tick(const TrackMoment& now);
    void LoseDesktop();

    TrackClock mClock;
    std::function<void(const std::string&)> mWarn;
    ProfileRecorder mRecorder;
    WatchSettings mSettings;
    ChosenDesktop mDesktop;
    std::unique_ptr<SessionSource> mSession;
    bool mHasLostSession = false;
    ProgramNames mNames;
    ControlServer mServer;
    /// When a desktop is looked for again, since there is none; on the clock that goes on while the machine sleeps.
    std::int64_t mNextTrial = 0;
    bool mLetsSleep = true;
    /// The last input that was told of, on that clock.
    std::optional<std::int64_t> mInput;
};

}
