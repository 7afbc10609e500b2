#include "slots/ActivityRuns.h"

#include <utility>

namespace tempodial {

namespace {

/// Seconds of a program in another's lone slot that make it the program's own.
constexpr std::int64_t JoiningSeconds = 30;

bool Follows(const PickedSlot& slot, std::int64_t end)
{
    return slot.start == end && slot.start % DaySeconds != 0;
}

}

std::optional<RunSlot> ActivityRuns::Add(PickedSlot slot)
{
    auto before = std::exchange(mWaiting, std::move(slot));
    if (!before) {
        return std::nullopt;
    }
    const bool isNext = Follows(*mWaiting, before->start + SlotSeconds);
    return Decided(std::move(*before), isNext ? &*mWaiting : nullptr);
}

std::optional<RunSlot> ActivityRuns::End()
{
    auto last = std::exchange(mWaiting, std::nullopt);
    if (!last) {
        return std::nullopt;
    }
    return Decided(std::move(*last), nullptr);
}

RunSlot ActivityRuns::Decided(PickedSlot slot, const PickedSlot* next)
{
    const bool continues = GoesOn(slot, next);
    if (continues) {
        ++mActivity->slots;
        mActivity->text = slot.text;
        mActivity->end = slot.start + SlotSeconds;
    } else {
        mActivity = Activity { slot.program, slot.place, slot.project, slot.text };
        mActivity->end = slot.start + SlotSeconds;
    }
    return { std::move(slot), continues };
}

bool ActivityRuns::GoesOn(PickedSlot& slot, const PickedSlot* next)
{
    if (!mActivity || !Follows(slot, mActivity->end)) {
        return false;
    }
    auto& activity = *mActivity;
    if (slot.program != activity.program) {
        const bool isBetween
            = next != nullptr && next->program == activity.program && next->project == activity.project;
        if (!isBetween || slot.SecondsOf(activity.program) < JoiningSeconds) {
            return false;
        }
        slot.program = activity.program;
        slot.place = activity.place;
        slot.project = activity.project;
        slot.text = activity.text;
        return true;
    }
    if (slot.project != activity.project) {
        return false;
    }
    const bool isSameText = !slot.text.empty() && slot.text == activity.text;
    if (!activity.isMixed && (slot.place == activity.place || isSameText)) {
        return true;
    }
    const bool isTwoInOnePlace = next != nullptr && next->program == slot.program && next->project == slot.project
        && next->place == slot.place;
    if (isTwoInOnePlace) {
        return false;
    }
    if (activity.isMixed) {
        return true;
    }
    activity.isMixed = activity.slots == 1;
    return activity.isMixed;
}

}
