#pragma once

#include "review/Activity.h"
#include "review/Period.h"

#include <cstdint>
#include <vector>

namespace tempodial {

/// A time between activities of one day, in which there is none.
struct Gap
{
    Date from;
    Date to;
    /// The minute boundaries between them.
    std::int32_t minutes = 0;

    friend bool operator==(const Gap&, const Gap&) = default;

    /// Those of a span of days that are longer than that many minutes, in order. The activities come in order of start;
    /// one from before the span counts as far as it reaches into it.
    static std::vector<Gap> Between(const std::vector<Activity>& activities, const Period& days, std::int32_t longer);
};

}
