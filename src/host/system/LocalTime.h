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
    /// The same moment in UTC.
    static Date UniversalAt(std::time_t moment);
    /// The moment in UTC of a local time; the local time itself when the system knows no such moment.
    static Date UniversalOf(Date local);

private:
    std::time_t mQuarter = std::numeric_limits<std::time_t>::min();
    std::time_t mOffset = 0;
};

}
