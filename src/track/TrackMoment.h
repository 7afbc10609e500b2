#pragma once

#include "base/Date.h"

#include <cstdint>

namespace tempodial {

inline constexpr std::int64_t MillisecondsOfSecond = 1000;

/// A moment on the recorder's three clocks, in milliseconds: that of the wall, that which goes on while the machine
/// sleeps, and that which doesn't.
struct TrackMoment
{
    /// Local time since 1899-12-30.
    std::int64_t local = 0;
    /// Time since the machine was started.
    std::int64_t boot = 0;
    /// The same without the time that it slept.
    std::int64_t awake = 0;
    /// Minutes by which local time is before UTC.
    int offset = 0;

    /// The time in UTC, counted as the local one is.
    std::int64_t Universal() const
    {
        constexpr std::int64_t MillisecondsOfMinute = 60000;
        return local - offset * MillisecondsOfMinute;
    }
    /// The local time as a date, with the part of a second cut off.
    Date ToDate() const { return Date::FromSeconds(local / MillisecondsOfSecond); }
};

}
