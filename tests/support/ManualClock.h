#pragma once

#include "platform/system/Clock.h"

#include <cstdint>

namespace tempodial {

/// A clock that stands still until a test moves it.
class ManualClock : public Clock
{
public:
    explicit ManualClock(Date now = {})
        : mNow(now)
    {
    }

    Date Now() override { return mNow; }
    void Set(Date now) { mNow = now; }
    void Advance(std::int64_t seconds) { mNow = mNow.AddSeconds(seconds); }

private:
    Date mNow;
};

}
