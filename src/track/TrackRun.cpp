#include "track/TrackRun.h"

#include "host/files/Uninterrupted.h"
#include "track/ControlPath.h"
#include "track/TrackError.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdint>
#include <limits>
#include <poll.h>
#include <sys/signalfd.h>
#include <sys/timerfd.h>
#include <unistd.h>

namespace tempodial {

namespace {

constexpr std::int64_t TickInterval = 15000;
/// How long after a desktop was lost, or not found, one is looked for again.
constexpr std::int64_t TrialInterval = 60000;
/// How long a desktop isn't listened to that has just told something: some titles change ten times a second, and each
/// look at one costs answers.
constexpr std::int64_t DesktopRest = 1000;
constexpr std::int64_t NanosecondsOfMillisecond = 1000000;

/// A descriptor of the system's that is closed at its end.
class OwnDescriptor
{
public:
    explicit OwnDescriptor(int number)
        : mNumber(number)
    {
    }
    ~OwnDescriptor() { ::close(mNumber); }
    OwnDescriptor(const OwnDescriptor&) = delete;
    OwnDescriptor& operator=(const OwnDescriptor&) = delete;

    int Number() const { return mNumber; }
    /// Takes what has come.
    void Empty() const
    {
        std::array<char, 512> buffer {};
        (void)Uninterrupted([&] { return ::read(mNumber, buffer.data(), buffer.size()); });
    }

private:
    int mNumber;
};

int EndingSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    for (const auto signal : { SIGINT, SIGTERM, SIGHUP }) {
        sigaddset(&signals, signal);
    }
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
    return ::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
}

int TickTimer(std::chrono::milliseconds interval)
{
    const auto timer = ::timerfd_create(CLOCK_MONOTONIC, TFD_CLOEXEC | TFD_NONBLOCK);
    const auto time = timespec { static_cast<time_t>(interval.count() / MillisecondsOfSecond),
        static_cast<long>(interval.count() % MillisecondsOfSecond * NanosecondsOfMillisecond) };
    const itimerspec ticks { time, time };
    ::timerfd_settime(timer, 0, &ticks, nullptr);
    return timer;
}

void WatchClock(int timer)
{
    // It never ends, but is ended when the clock of the wall is put.
    itimerspec never {};
    never.it_value.tv_sec = std::numeric_limits<std::int32_t>::max();
    ::timerfd_settime(timer, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &never, nullptr);
}

std::string ReasonsOf(const ChosenDesktop& desktop)
{
    std::string reasons;
    for (const auto& trial : desktop.trials) {
        reasons += (reasons.empty() ? "" : "; ") + trial.name + ": " + trial.sight.why;
    }
    return reasons;
}

}

/// What the loop waits for, by place.
struct TrackRun::Waits
{
    enum Place { Ending, Ticks, ClockSet, Control, Desktop, Session, Count };
};

WatchSettings WatchSettingsAt(const TrackClock& clock)
{
    return { clock.Real(TickInterval) };
}

std::optional<std::int64_t> IdleTime(DesktopSource* desktop, SessionSource* session, const TrackClock& clock)
{
    auto idle = desktop != nullptr ? desktop->Idle() : std::nullopt;
    if (!idle && session != nullptr) {
        idle = session->Idle();
    }
    return idle ? std::optional(clock.Scaled(*idle)) : std::nullopt;
}

Observation Observed(DesktopSource* desktop, SessionSource* session, ProgramNames& names)
{
    Observation seen;
    if (desktop == nullptr) {
        seen.isLocked = true; // nobody is in front of a desktop that isn't there
    } else {
        if (const auto window = desktop->Window()) {
            const auto id = ProgramNames::IdOf(*window);
            seen.window = Sighting { id, names.NameOf(id), window->title, "", false };
        }
        seen.isLocked = desktop->IsLocked().value_or(false);
    }
    if (session != nullptr) {
        seen.isLocked = seen.isLocked || session->IsLocked().value_or(false);
        seen.isAsleep = session->IsGoingToSleep();
    }
    return seen;
}

TrackRun::TrackRun(const TrackOptions& options, const std::function<void(const std::string&)>& warn)
    : mClock(options.now, options.speed)
    , mWarn(warn)
    , mRecorder(options.profile, mClock.Now(), warn)
    , mSettings(WatchSettingsAt(mClock))
    , mDesktop(ChooseDesktop(mSettings))
    , mServer([&options] {
        try {
            return ControlServer(ControlPathOf(options.profile));
        } catch (const std::runtime_error& error) {
            throw TrackError(error.what());
        }
    }())
{
    if (!mDesktop.source) {
        throw TrackError(
            "no desktop can be watched (" + ReasonsOf(mDesktop) + "): \"tempodial track probe\" says more");
    }
    std::string why;
    mSession = OpenSession(mSettings, why);
}

bool TrackRun::Run()
{
    const OwnDescriptor ending(EndingSignals());
    const OwnDescriptor ticks(TickTimer(mClock.Real(TickInterval)));
    const OwnDescriptor clockSet(::timerfd_create(CLOCK_REALTIME, TFD_CLOEXEC | TFD_NONBLOCK));
    WatchClock(clockSet.Number());
    Observe(mClock.Now(), true);
    bool rests = false;
    for (;;) {
        std::array<pollfd, Waits::Count> waits {};
        waits[Waits::Ending] = { ending.Number(), POLLIN, 0 };
        waits[Waits::Ticks] = { ticks.Number(), POLLIN, 0 };
        waits[Waits::ClockSet] = { clockSet.Number(), POLLIN, 0 };
        waits[Waits::Control] = { mServer.Descriptor(), POLLIN, 0 };
        waits[Waits::Desktop] = mDesktop.source && !rests
            ? pollfd { mDesktop.source->Descriptor(), mDesktop.source->Events(), 0 }
            : pollfd { -1, 0, 0 };
        waits[Waits::Session]
            = mSession ? pollfd { mSession->Descriptor(), mSession->Events(), 0 } : pollfd { -1, 0, 0 };
        const auto limit = rests ? static_cast<int>(mClock.Real(DesktopRest).count()) : -1;
        if (Uninterrupted([&] { return ::poll(waits.data(), waits.size(), limit); }) == 0) {
            rests = false;
            continue;
        }
        rests = waits[Waits::Desktop].revents != 0;
        const bool isTick = waits[Waits::Ticks].revents != 0;
        if (waits[Waits::Ending].revents != 0) {
            break;
        }
        if (isTick) {
            ticks.Empty();
        }
        if (waits[Waits::ClockSet].revents != 0) {
            clockSet.Empty();
            WatchClock(clockSet.Number());
        }
        if (mDesktop.source && (isTick || waits[Waits::Desktop].revents != 0) && !mDesktop.source->Dispatch()) {
            LoseDesktop();
        }
        if (mSession && (isTick || waits[Waits::Session].revents != 0) && !mSession->Dispatch()) {
            mSession.reset();
            mHasLostSession = true;
            mWarn("the login manager is gone: locks and sleep aren't seen until it is back");
        }
        const auto now = mClock.Now();
        const bool isOnlyTick = isTick
            && std::count_if(waits.begin(), waits.end(), [](const auto& wait) { return wait.revents != 0; }) == 1;
        Observe(now, !isOnlyTick || mRecorder.IsStateDue(now));
        if (waits[Waits::Control].revents != 0) {
            mServer.Serve([this](const ControlMessage& request) {
                auto answer = mRecorder.Answer(request, mClock.Now());
                answer.Set("backend", mDesktop.name);
                return answer;
            });
        }
        if (isTick) {
            Tick(now);
        }
    }
    Observe(mClock.Now(), true);
    return mRecorder.End(mClock.Now());
}

void TrackRun::Observe(const TrackMoment& now, bool asks)
{
    if (asks) {
        // The answer may bring news of the window in front with it, so it comes first.
        const auto idle = IdleTime(mDesktop.source.get(), mSession.get(), mClock);
        mInput = idle ? std::optional(now.boot - *idle) : std::nullopt;
    }
    auto seen = Observed(mDesktop.source.get(), mSession.get(), mNames);
    if (mInput) {
        seen.idle = now.boot - *mInput;
    }
    mRecorder.Observe(now, seen);
    if (seen.isAsleep && mLetsSleep) {
        mRecorder.KeepState();
        mSession->LetSleep();
    }
    mLetsSleep = !seen.isAsleep;
}

void TrackRun::Tick(const TrackMoment& now)
{
    mRecorder.Tick(now);
    const bool misses = !mDesktop.source || mHasLostSession;
    if (!misses || now.boot < mNextTrial) {
        return;
    }
    mNextTrial = now.boot + TrialInterval;
    if (!mDesktop.source) {
        mDesktop = ChooseDesktop(mSettings);
    }
    if (mHasLostSession) {
        std::string why;
        mSession = OpenSession(mSettings, why);
        mHasLostSession = !mSession;
    }
}

void TrackRun::LoseDesktop()
{
    mWarn("the desktop " + mDesktop.name + " is gone: what comes in its place is looked for");
    mDesktop = {};
    mNextTrial = mClock.Now().boot + TrialInterval;
}

}
