#include "host/system/HostClock.h"

#include <ctime>

namespace tempodial {

namespace {

/// How long the system runs, as of its last tick: the trace asks for each of its lines, and wants whole seconds.
std::chrono::nanoseconds SystemAge()
{
    std::timespec age {};
    ::clock_gettime(CLOCK_MONOTONIC_COARSE, &age);
    return std::chrono::seconds(age.tv_sec) + std::chrono::nanoseconds(age.tv_nsec);
}

}

HostClock::HostClock(std::optional<Date> start)
    : mStart(start)
    , mStartedAt(SystemAge())
{
}

Date HostClock::Now()
{
    return mStart ? mStart->AddSeconds(SecondsGone()) : mLocalTime.At(std::time(nullptr));
}

Date HostClock::UniversalNow()
{
    if (!mStart) {
        return LocalTime::UniversalAt(std::time(nullptr));
    }
    // The system looks at its time zone's file for each conversion, so there is one only.
    if (!mUniversalStart) {
        mUniversalStart = LocalTime::UniversalOf(*mStart);
    }
    return mUniversalStart->AddSeconds(SecondsGone());
}

std::int64_t HostClock::SecondsGone() const
{
    return std::chrono::duration_cast<std::chrono::seconds>(SystemAge() - mStartedAt).count();
}

void HostClock::Set(Date now)
{
    mStart = now;
    mUniversalStart.reset();
    mStartedAt = SystemAge();
}

}
