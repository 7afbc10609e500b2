#include "slots/ActivityWriter.h"

#include <utility>

namespace tempodial {

namespace {

FiledSlot FiledWith(const RunSlot& run, const SlotWords& words, SlotDetails& details)
{
    const auto& slot = run.slot;
    FiledSlot filed;
    filed.midnight = slot.start - slot.start % DaySeconds;
    filed.slot.start = slot.start - filed.midnight;
    filed.slot.end = filed.slot.start + SlotSeconds;
    filed.slot.continues = run.continues;
    filed.slot.words = words.Current();
    filed.slot.details = details.Of(slot, filed.slot.words);
    std::int64_t seconds = 0;
    for (const auto& time : slot.views) {
        seconds += time.seconds;
    }
    filed.slot.tellsDetailsAlone = words.SecondsIn(slot) * 2 < seconds;
    return filed;
}

}

std::optional<FiledSlot> GrowingActivities::Add(PickedSlot slot)
{
    return Filed(mRuns.Add(std::move(slot)));
}

std::optional<FiledSlot> GrowingActivities::End()
{
    return Filed(mRuns.End());
}

std::optional<FiledSlot> GrowingActivities::Filed(std::optional<RunSlot> run)
{
    if (!run) {
        return std::nullopt;
    }
    if (!run->continues) {
        mWords = {};
        mDetails = {};
    }
    mWords.Add(run->slot);
    return FiledWith(*run, mWords, mDetails);
}

std::vector<FiledSlot> WholeActivities(std::vector<PickedSlot> slots)
{
    std::vector<FiledSlot> filed;
    std::vector<RunSlot> activity;
    const auto close = [&filed, &activity] {
        SlotWords words;
        for (const auto& run : activity) {
            words.Add(run.slot);
        }
        SlotDetails details;
        for (const auto& run : activity) {
            filed.push_back(FiledWith(run, words, details));
        }
        activity.clear();
    };
    ActivityRuns runs;
    const auto take = [&activity, &close](std::optional<RunSlot> run) {
        if (run && !run->continues) {
            close();
        }
        if (run) {
            activity.push_back(std::move(*run));
        }
    };
    for (auto& slot : slots) {
        take(runs.Add(std::move(slot)));
    }
    take(runs.End());
    close();
    return filed;
}

}
