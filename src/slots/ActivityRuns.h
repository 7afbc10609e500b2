#pragma once

#include "slots/SlotPicker.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tempodial {

/// A slot of which it is decided whether it goes on with the activity before it.
struct RunSlot
{
    PickedSlot slot;
    bool continues = false;
};

/// Makes activities of slots, with no more than the next slot to look ahead at. A slot goes on with the one before it
/// when program and place are the same, or its words are; a program's lone slot between two of another joins that one
/// when that has some time in it; two slots in one place are an activity of their own; and lone slots of one program in
/// several places melt into one. Nothing goes on over midnight, over a slot that is missing, or from one project to
/// another.
class ActivityRuns
{
public:
    /// Takes the next slot, and gives the one before it; nothing when there was none.
    std::optional<RunSlot> Add(PickedSlot slot);
    /// Gives the slot that waits for the next one, since there will be none; nothing when none waits.
    std::optional<RunSlot> End();

private:
    /// The activity that goes on.
    struct Activity
    {
        std::string program, place, project, text;
        /// Slots that it has so far.
        int slots = 1;
        /// True when it has melted of several places.
        bool isMixed = false;
        std::int64_t end = 0;
    };

    RunSlot Decided(PickedSlot slot, const PickedSlot* next);
    bool GoesOn(PickedSlot& slot, const PickedSlot* next);

    std::optional<PickedSlot> mWaiting;
    std::optional<Activity> mActivity;
};

}
