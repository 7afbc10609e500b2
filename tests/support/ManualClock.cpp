#include "support/ManualClock.h"

namespace tempodial {

ManualClock::ManualClock(Date now)
    : mNow(now)
{
}

Date ManualClock::Now()
{
    return mNow;
}

void ManualClock::Set(Date now)
{
    mNow = now;
}

void ManualClock::Advance(std::int64_t seconds)
{
    mNow = mNow.AddSeconds(seconds);
}

}
