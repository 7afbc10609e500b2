#include "host/system/HostClock.h"

#include <ctime>

namespace tempodial {

HostClock::HostClock(std::optional<Date> start)
    : mStart(start)
    , mStartedAt(std::chrono::steady_clock::now())
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
    const auto gone = std::chrono::steady_clock::now() - mStartedAt;
    return std::chrono::duration_cast<std::chrono::seconds>(gone).count();
}

void HostClock::Set(Date now)
{
    mStart = now;
    mUniversalStart.reset();
    mStartedAt = std::chrono::steady_clock::now();
}

}
