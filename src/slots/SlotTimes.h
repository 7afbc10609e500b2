#pragma once

#include "slots/SlotView.h"

#include <cstdint>
#include <vector>

namespace tempodial {

/// Seconds of a slot, and of a day.
inline constexpr std::int64_t SlotSeconds = 300;
inline constexpr std::int64_t DaySeconds = 86400;

/// Who was there and what was in front during one slot.
struct SlotTimes
{
    /// When the slot begins: seconds of local time, counted from some midnight on and on the grid of slots.
    std::int64_t start = 0;
    /// Seconds with somebody there.
    std::int64_t presence = 0;
    /// Each view once, in the order in which they came.
    std::vector<ViewTime> views;

    /// Adds seconds of a view.
    void Add(const SlotView& view, std::int64_t seconds);
};

/// Adds seconds of a view to a list that holds each view once.
void AddTime(std::vector<ViewTime>& views, const SlotView& view, std::int64_t seconds);

}
