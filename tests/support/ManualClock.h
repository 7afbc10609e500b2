#pragma once

#include "platform/system/Clock.h"

#include <cstdint>

namespace tempodial {

/// A clock that stands still until a test moves it.
class ManualClock : public Clock
{
public:
    explicit ManualClock(Date now = {});

    Date Now() override;
    void Set(Date now);
    void Advance(std::int64_t seconds);

private:
    Date mNow;
};

}
