#pragma once

#include "base/Date.h"

namespace tempodial {

/// The clock on the wall.
class Clock
{
public:
    virtual ~Clock() = default;

    /// The present moment in local time, cut to seconds.
    virtual Date Now() = 0;
};

}
