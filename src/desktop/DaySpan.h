#pragma once

#include <cstdint>

namespace tempodial {

/// A part of a day, in seconds since its midnight.
struct DaySpan
{
    static constexpr std::int32_t WholeDay = 86400;

    std::int32_t from = 0;
    std::int32_t to = 0;

    std::int32_t Seconds() const { return to - from; }

    friend bool operator==(const DaySpan&, const DaySpan&) = default;
};

}
