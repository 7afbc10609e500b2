#include "track/PendingTime.h"

#include "slots/SlotPicker.h"
#include "track/TrackMoment.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tempodial {

namespace {

constexpr auto SlotLength = SlotSeconds * MillisecondsOfSecond;

}

void PendingTime::Add(const ViewStretch& stretch)
{
    if (stretch.end <= stretch.begin) {
        return;
    }
    if (!mStretches.empty() && mStretches.back().end == stretch.begin && mStretches.back().view == stretch.view) {
        mStretches.back().end = stretch.end;
    } else {
        mStretches.push_back(stretch);
    }
}

void PendingTime::Confirm(std::int64_t until)
{
    for (const auto& stretch : mStretches) {
        if (stretch.begin < until) {
            Put({ stretch.begin, std::min(stretch.end, until), stretch.view });
        }
    }
    Drop(until);
}

void PendingTime::Drop(std::int64_t until)
{
    std::erase_if(mStretches, [until](const auto& stretch) { return stretch.end <= until; });
    for (auto& stretch : mStretches) {
        stretch.begin = std::max(stretch.begin, until);
    }
}

void PendingTime::Forget(std::int64_t from)
{
    std::erase_if(mSlots, [from](const auto& slot) { return slot.start * MillisecondsOfSecond + SlotLength > from; });
    std::erase_if(mStretches, [from](const auto& stretch) { return stretch.end > from; });
}

void PendingTime::Restore(const OpenSlot& slot)
{
    auto& known = SlotAt(slot.start);
    known.presence = std::min(known.presence + slot.presence, SlotLength);
    for (const auto& time : slot.views) {
        AddTime(known.views, time.view, time.seconds);
    }
}

std::vector<OpenSlot> PendingTime::Take(std::int64_t until)
{
    const auto end = std::find_if(mSlots.begin(), mSlots.end(),
        [until](const auto& slot) { return slot.start * MillisecondsOfSecond + SlotLength > until; });
    std::vector<OpenSlot> taken(std::make_move_iterator(mSlots.begin()), std::make_move_iterator(end));
    mSlots.erase(mSlots.begin(), end);
    return taken;
}

std::vector<OpenSlot> PendingTime::TakeCounting()
{
    std::vector<OpenSlot> taken;
    for (auto slot = mSlots.begin(); slot != mSlots.end();) {
        if (Counts(slot->presence / MillisecondsOfSecond)) {
            taken.push_back(std::move(*slot));
            slot = mSlots.erase(slot);
        } else {
            ++slot;
        }
    }
    return taken;
}

OpenSlot& PendingTime::SlotAt(std::int64_t start)
{
    const auto next
        = std::find_if(mSlots.begin(), mSlots.end(), [start](const auto& slot) { return slot.start >= start; });
    if (next != mSlots.end() && next->start == start) {
        return *next;
    }
    return *mSlots.insert(next, OpenSlot { .start = start, .presence = 0, .views = {} });
}

void PendingTime::Put(const ViewStretch& stretch)
{
    for (auto begin = stretch.begin; begin < stretch.end;) {
        const auto start = begin - begin % SlotLength;
        const auto end = std::min(stretch.end, start + SlotLength);
        auto& slot = SlotAt(start / MillisecondsOfSecond);
        slot.presence = std::min(slot.presence + end - begin, SlotLength);
        if (stretch.view) {
            AddTime(slot.views, *stretch.view, end - begin);
        }
        begin = end;
    }
}

}
