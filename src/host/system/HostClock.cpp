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
    if (mStart) {
        const auto gone = std::chrono::steady_clock::now() - mStartedAt;
        return mStart->AddSeconds(std::chrono::duration_cast<std::chrono::seconds>(gone).count());
    }
    return mLocalTime.At(std::time(nullptr));
}

Date HostClock::UniversalNow()
{
    return mStart ? LocalTime::UniversalOf(Now()) : LocalTime::UniversalAt(std::time(nullptr));
}

void HostClock::Set(Date now)
{
    mStart = now;
    mStartedAt = std::chrono::steady_clock::now();
}

}
