#pragma once

#include "slots/SlotTimes.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// What a slot is taken to have been: a program, and a place in it.
struct PickedSlot
{
    /// As that of `SlotTimes`.
    std::int64_t start = 0;
    std::string program;
    std::string place;
    std::string project;
    /// The title that was longest in front there.
    std::string text;
    /// All that was in front, with what was carried into the slot.
    std::vector<ViewTime> views;

    /// Seconds of that program, whatever the place.
    std::int64_t SecondsOf(const std::string& program) const;
};

/// Decides of each slot whether it counts, and which program and place it goes to: the ones with most time, but those
/// of the slot before stay while they have a third of that.
class SlotPicker
{
public:
    /// Takes the slots in their order; nothing for a slot that doesn't count, whose views then go to the next one,
    /// unless nobody was there at all in between.
    std::optional<PickedSlot> Pick(const SlotTimes& times);
    /// Nobody is there any more: nothing goes on.
    void EndSession();

private:
    /// Keeps the views of a slot that doesn't count for the next one; of very many those with most time.
    void Carry(std::vector<ViewTime> views);

    std::vector<ViewTime> mCarried;
    /// What the last slot was taken for, while the session goes on.
    std::optional<PickedSlot> mLast;
    std::int64_t mEnd = 0;
};

/// True for a slot that has so many seconds of presence that it counts.
constexpr bool Counts(std::int64_t presence)
{
    return presence >= SlotSeconds / 2;
}

}
