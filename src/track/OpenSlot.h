#pragma once

#include "slots/SlotTimes.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tempodial {

/// A time with a view in front, or with somebody there and nothing in front; local time in milliseconds.
struct ViewStretch
{
    std::int64_t begin = 0;
    std::int64_t end = 0;
    std::optional<SlotView> view;

    bool operator==(const ViewStretch&) const = default;
};

/// What is known of a slot so far, as `SlotTimes` has it, but in milliseconds.
struct OpenSlot
{
    /// Seconds of local time, on the grid.
    std::int64_t start = 0;
    std::int64_t presence = 0;
    std::vector<ViewTime> views;

    /// The same in seconds.
    SlotTimes ToTimes() const;
};

}
