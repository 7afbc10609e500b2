#pragma once

#include "base/Date.h"

#include <ctime>
#include <limits>

namespace tempodial {

/// Turns the system's moments into local wall-clock time. The zone is asked once a quarter of an hour, at whose ends
/// alone clocks are put forward or back.
class LocalTime
{
public:
    /// The local time of a moment in seconds since 1970 began in UTC.
    Date At(std::time_t moment);

private:
    std::time_t mQuarter = std::numeric_limits<std::time_t>::min();
    std::time_t mOffset = 0;
};

}
