#include "track/TrackClock.h"

#include <algorithm>
#include <ctime>

namespace tempodial {

namespace {

/// From 1899-12-30 to 1970-01-01.
constexpr std::int64_t SecondsTo1970 = std::int64_t { 25569 } * 86400;

std::int64_t Read(clockid_t clock)
{
    constexpr std::int64_t NanosecondsOfMillisecond = 1000000;
    timespec time {};
    ::clock_gettime(clock, &time);
    return time.tv_sec * MillisecondsOfSecond + time.tv_nsec / NanosecondsOfMillisecond;
}

/// The moment of a local time, in milliseconds since 1970 began in UTC.
std::int64_t UniversalOf(Date local)
{
    constexpr int FirstYear = 1900;
    const auto parts = local.ToParts();
    std::tm fields {};
    fields.tm_year = parts.year - FirstYear;
    fields.tm_mon = parts.month - 1;
    fields.tm_mday = parts.day;
    fields.tm_hour = parts.hour;
    fields.tm_min = parts.minute;
    fields.tm_sec = parts.second;
    fields.tm_isdst = -1;
    return std::mktime(&fields) * MillisecondsOfSecond;
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
        mStart = { start ? UniversalOf(*start) : Read(CLOCK_REALTIME), Read(CLOCK_BOOTTIME), Read(CLOCK_MONOTONIC) };
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
