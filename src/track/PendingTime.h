#pragma once

#include "track/OpenSlot.h"

#include <cstdint>
#include <vector>

namespace tempodial {

/// Time that isn't written yet: as slots, as far as somebody is known to have been there, and behind that as stretches
/// of which only the next input tells whether anyone was. Times are local, in milliseconds.
class PendingTime
{
public:
    /// Adds a time behind all others, of which it isn't known yet whether anyone was there.
    void Add(const ViewStretch& stretch);
    /// Somebody was there, up to a moment.
    void Confirm(std::int64_t until);
    /// Nobody was there, up to a moment.
    void Drop(std::int64_t until);
    /// Nobody was there since the last time that was confirmed.
    void DropAll() { mStretches.clear(); }
    /// Forgets all that reaches behind a moment.
    void Forget(std::int64_t from);
    /// Adds to a slot what was known of it before.
    void Restore(const OpenSlot& slot);

    /// Takes the slots that have ended up to a moment, in their order.
    std::vector<OpenSlot> Take(std::int64_t until);
    /// Takes those too that are long enough to count.
    std::vector<OpenSlot> TakeCounting();

    /// The slots, in their order.
    const std::vector<OpenSlot>& Slots() const { return mSlots; }
    /// The stretches, in their order.
    const std::vector<ViewStretch>& Stretches() const { return mStretches; }

private:
    OpenSlot& SlotAt(std::int64_t start);
    void Put(const ViewStretch& stretch);

    std::vector<OpenSlot> mSlots;
    std::vector<ViewStretch> mStretches;
};

}
