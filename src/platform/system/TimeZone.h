#pragma once

#include "base/Date.h"

#include <cstdint>

namespace tempodial {

/// A time zone, with all that was ever decided of it.
class TimeZone
{
public:
    virtual ~TimeZone() = default;

    /// Seconds by which local time is before UTC at a moment, in seconds since 1970 began in UTC.
    virtual std::int64_t OffsetAt(std::int64_t moment) = 0;
    /// The moment of a local time, in seconds since 1970 began in UTC: the earlier one of a time that comes twice, and
    /// of one that never comes as if the clock had not been put forward.
    virtual std::int64_t MomentOf(Date local) = 0;
};

}
