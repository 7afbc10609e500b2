#include "track/TrackClock.h"

#include "base/UnixTime.h"

#include <algorithm>
#include <ctime>

namespace tempodial {

namespace {

std::int64_t Read(clockid_t clock)
{
    constexpr std::int64_t NanosecondsOfMillisecond = 1000000;
    timespec time {};
    ::clock_gettime(clock, &time);
    return time.tv_sec * MillisecondsOfSecond + time.tv_nsec / NanosecondsOfMillisecond;
}

/// Seconds by which local time is before UTC.
std::int64_t OffsetAt(std::int64_t universal)
{
    // A zone that was set since is looked for.
    ::tzset();
    const std::time_t moment = universal / MillisecondsOfSecond;
    std::tm local {};
    return ::localtime_r(&moment, &local) == nullptr ? 0 : local.tm_gmtoff;
}

}

TrackClock::TrackClock(std::optional<Date> start, int speed)
    : mSpeed(speed)
{
    if (start || speed != 1) {
        const auto universal = start ? UnixTimeOf(*start) : std::nullopt;
        mStart = { universal ? *universal * MillisecondsOfSecond : Read(CLOCK_REALTIME), Read(CLOCK_BOOTTIME),
            Read(CLOCK_MONOTONIC) };
    }
}

TrackMoment TrackClock::Now() const
{
    constexpr int SecondsOfMinute = 60;
    TrackMoment moment;
    auto universal = Read(CLOCK_REALTIME);
    moment.boot = Read(CLOCK_BOOTTIME);
    moment.awake = Read(CLOCK_MONOTONIC);
    if (mStart) {
        moment.boot = mStart->boot + (moment.boot - mStart->boot) * mSpeed;
        moment.awake = mStart->awake + (moment.awake - mStart->awake) * mSpeed;
        universal = mStart->universal + moment.boot - mStart->boot;
    }
    const auto offset = OffsetAt(universal);
    moment.local = universal + (offset + SecondsTo1970) * MillisecondsOfSecond;
    moment.offset = static_cast<int>(offset / SecondsOfMinute);
    return moment;
}

std::chrono::milliseconds TrackClock::Real(std::int64_t time) const
{
    return std::chrono::milliseconds(std::max<std::int64_t>(time / mSpeed, 1));
}

}
