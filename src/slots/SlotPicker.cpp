#include "slots/SlotPicker.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

/// What was before stays while it has one part of so many of the leader's time.
constexpr std::int64_t StayingShare = 3;

constexpr std::size_t MostCarried = SlotSeconds;

/// Texts with their seconds, each once, in the order in which they came.
using Shares = std::vector<std::pair<std::string, std::int64_t>>;

void AddShare(Shares& shares, const std::string& text, std::int64_t seconds)
{
    const auto found
        = std::find_if(shares.begin(), shares.end(), [&text](const auto& share) { return share.first == text; });
    if (found == shares.end()) {
        shares.emplace_back(text, seconds);
    } else {
        found->second += seconds;
    }
}

/// The text with most time, or the one before while it has enough.
std::string Leader(const Shares& shares, const std::string* before)
{
    const auto leader = std::max_element(
        shares.begin(), shares.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
    if (leader == shares.end()) {
        return "";
    }
    if (before != nullptr) {
        const auto last = std::find_if(
            shares.begin(), shares.end(), [before](const auto& share) { return share.first == *before; });
        if (last != shares.end() && last->second * StayingShare >= leader->second) {
            return *before;
        }
    }
    return leader->first;
}

}

std::int64_t PickedSlot::SecondsOf(const std::string& name) const
{
    std::int64_t seconds = 0;
    for (const auto& time : views) {
        seconds += time.view.program == name ? time.seconds : 0;
    }
    return seconds;
}

std::optional<PickedSlot> SlotPicker::Pick(const SlotTimes& times)
{
    if (times.presence <= 0 || times.start != mEnd) {
        EndSession();
    }
    mEnd = times.start + SlotSeconds;
    if (times.presence <= 0) {
        return std::nullopt;
    }
    auto views = std::exchange(mCarried, {});
    for (const auto& time : times.views) {
        AddTime(views, time.view, time.seconds);
    }
    if (!Counts(times.presence)) {
        Carry(std::move(views));
        return std::nullopt;
    }
    PickedSlot slot;
    slot.start = times.start;
    if (views.empty()) {
        // Somebody was there, and nothing says at what: it goes on as it was.
        if (!mLast) {
            return std::nullopt;
        }
        slot.program = mLast->program;
        slot.place = mLast->place;
        slot.project = mLast->project;
        slot.text = mLast->text;
        mLast = slot;
        return slot;
    }
    Shares programs;
    for (const auto& time : views) {
        AddShare(programs, time.view.program, time.seconds);
    }
    slot.program = Leader(programs, mLast ? &mLast->program : nullptr);
    const bool isSameProgram = mLast && mLast->program == slot.program;
    Shares places;
    Shares projects;
    Shares texts;
    for (const auto& time : views) {
        if (time.view.program == slot.program) {
            AddShare(places, time.view.place, time.seconds);
        }
    }
    slot.place = Leader(places, isSameProgram ? &mLast->place : nullptr);
    for (const auto& time : views) {
        if (time.view.program == slot.program && time.view.place == slot.place) {
            AddShare(projects, time.view.project, time.seconds);
            AddShare(texts, time.view.text, time.seconds);
        }
    }
    slot.project = Leader(projects, isSameProgram ? &mLast->project : nullptr);
    slot.text = Leader(texts, nullptr);
    slot.views = std::move(views);
    mLast = slot;
    return slot;
}

void SlotPicker::Carry(std::vector<ViewTime> views)
{
    // More views than a slot has seconds come of a long row of slots that don't count.
    if (views.size() > MostCarried) {
        std::stable_sort(
            views.begin(), views.end(), [](const auto& a, const auto& b) { return a.seconds > b.seconds; });
        views.resize(MostCarried / 2);
    }
    mCarried = std::move(views);
}

void SlotPicker::EndSession()
{
    mCarried.clear();
    mLast.reset();
}

}
