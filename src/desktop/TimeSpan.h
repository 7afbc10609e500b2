#pragma once

#include "base/Date.h"

namespace tempodial {

/// When something begins and ends.
struct TimeSpan
{
    Date start;
    Date end;

    friend bool operator==(const TimeSpan&, const TimeSpan&) = default;
};

}
