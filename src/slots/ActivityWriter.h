#pragma once

#include "slots/ActivityRuns.h"
#include "slots/DayFile.h"
#include "slots/SlotPicker.h"
#include "slots/SlotWords.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tempodial {

/// A slot ready for a day's file.
struct FiledSlot
{
    /// The midnight that begins its day, counted as the slots' times are.
    std::int64_t midnight = 0;
    ActivitySlot slot;
};

/// Makes slots for day files as they come, one slot behind: the words of an activity grow with it.
class GrowingActivities
{
public:
    /// Takes the next slot, and gives the one before it; nothing when there was none.
    std::optional<FiledSlot> Add(PickedSlot slot);
    /// Gives the slot that waits, since nothing follows it; nothing when none waits.
    std::optional<FiledSlot> End();

private:
    std::optional<FiledSlot> Filed(std::optional<RunSlot> run);

    ActivityRuns mRuns;
    SlotWords mWords;
    SlotDetails mDetails;
};

/// Makes slots for day files where all of them are known, in their order: each has the last words of its activity.
std::vector<FiledSlot> WholeActivities(std::vector<PickedSlot> slots);

}
