#include "track/Recorder.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tempodial {

namespace {

/// What clocks may differ by before one was put: they are read one after the other, and are kept right in small steps.
constexpr std::int64_t ClockTolerance = 2000;
/// A time that the machine must have slept for before it counts as sleep.
constexpr std::int64_t ShortestSleep = 30000;
/// Between two windows there is none, for a moment.
constexpr std::int64_t BetweenWindows = 2000;

std::int64_t PatienceOf(const std::optional<SlotView>& view)
{
    return IdleLimit(view ? view->sort : ProgramSort::Other) * MillisecondsOfSecond;
}

std::int64_t SlotEnd(const OpenSlot& slot)
{
    return slot.start + SlotSeconds;
}

}

Recorder::Recorder(SlotSink& sink, ViewMaker views, std::function<void(const std::string&)> warn)
    : mSink(sink)
    , mViews(std::move(views))
    , mWarn(std::move(warn))
{
}

void Recorder::Restore(const TrackState& state, const TrackMoment& now)
{
    mIsPaused = state.isPaused;
    if (state.pausedUntil) {
        mPauseEnd = now.boot + *state.pausedUntil - now.Universal();
    }
    mProject = state.project;
    // When the clock was put back since, nobody knows how long ago the last input was.
    const bool isClockGood = state.input <= now.local;
    mBefore = now;
    mSince = now.local;
    mInput = isClockGood ? now.boot - (now.local - state.input) : now.boot;
    mPatience = isClockGood ? state.patience : 0;
    mPatience = std::max(mPatience, PatienceOf(std::nullopt));
    for (const auto& slot : state.slots) {
        const auto midnight = slot.start - slot.start % DaySeconds;
        if (SlotEnd(slot) - midnight > mSink.WrittenUntil(midnight)) {
            mPending.Restore(slot);
        }
    }
    for (const auto& stretch : state.stretches) {
        if (isClockGood) {
            AddPart(stretch.begin, stretch.end, stretch.view);
        }
    }
}

TrackState Recorder::State() const
{
    TrackState state;
    state.isPaused = mIsPaused;
    if (mPauseEnd && mBefore) {
        state.pausedUntil = mBefore->Universal() + *mPauseEnd - mBefore->boot;
    }
    state.project = mProject;
    state.input = mBefore ? ToLocal(mInput) : 0;
    state.patience = mPatience;
    state.slots = mUnwritten;
    state.slots.insert(state.slots.end(), mPending.Slots().begin(), mPending.Slots().end());
    state.stretches = mPending.Stretches();
    return state;
}

void Recorder::Observe(const TrackMoment& now, const Observation& seen)
{
    if (mBefore) {
        Pass(now);
    } else {
        mInput = now.boot - seen.idle.value_or(0);
        mSince = now.local;
        mPatience = PatienceOf(std::nullopt);
    }
    if (mPauseEnd && now.boot >= *mPauseEnd) {
        Resume();
    }
    mBefore = now;
    const bool wasGone = IsGone();
    const bool wasIdle = IsIdle();
    const bool hasInput = TakeInput(seen);
    Look(seen);
    mPatience = hasInput ? PatienceOf(mView) : std::max(mPatience, PatienceOf(mView));
    if (IsGone() && !wasGone) {
        Flush();
    }
    if (IsIdle() != wasIdle) {
        mSince = mIsIdle ? ToLocal(mInput) : now.local;
    }
    Settle(IsIdle() ? now.local : std::min(now.local, ToLocal(mInput)));
}

void Recorder::End(const TrackMoment& now)
{
    if (mBefore) {
        Pass(now);
        mBefore = now;
        Flush();
    }
}

void Recorder::Pause(const TrackMoment& now, std::optional<std::int64_t> length)
{
    if (mBefore) {
        Pass(now);
        mBefore = now;
        Flush();
    }
    mIsPaused = true;
    mPauseEnd = length ? std::optional(now.boot + *length) : std::nullopt;
    mSince = now.local;
}

void Recorder::Resume()
{
    mIsPaused = false;
    mPauseEnd.reset();
}

void Recorder::Forget(std::int64_t from)
{
    mPending.Forget(from);
    std::erase_if(mUnwritten, [from](const auto& slot) { return SlotEnd(slot) * MillisecondsOfSecond > from; });
    if (mWaitingEnd && *mWaitingEnd * MillisecondsOfSecond <= from) {
        File(mActivities.End());
    }
    // The words of an activity outlive its slots.
    mActivities = {};
    mWaitingEnd.reset();
    mPicker.EndSession();
}

void Recorder::Pass(const TrackMoment& now)
{
    const auto& before = *mBefore;
    const auto gone = now.boot - before.boot;
    const auto step = now.local - before.local - gone;
    const bool isStep = std::abs(step) > ClockTolerance;
    const bool hasSlept = gone - (now.awake - before.awake) > ShortestSleep;
    if (!IsGone() && !mIsDropped && !hasSlept) {
        AddStretch(before.local, isStep ? before.local + gone : now.local);
    }
    if (isStep || hasSlept) {
        Flush();
    }
    if (isStep) {
        mActivities = {};
    }
    if (isStep && step < 0) {
        mWarn("the clock was put back: nothing is recorded until it has passed what is recorded already");
    }
}

void Recorder::AddStretch(std::int64_t begin, std::int64_t end)
{
    if (!mNoWindowSince) {
        AddPart(begin, end, mView);
        return;
    }
    // Without a window what was in front stays so for a moment.
    const auto kept = std::clamp(ToLocal(*mNoWindowSince) + BetweenWindows, begin, end);
    AddPart(begin, kept, mView);
    AddPart(kept, end, std::nullopt);
}

void Recorder::AddPart(std::int64_t begin, std::int64_t end, const std::optional<SlotView>& view)
{
    while (begin < end) {
        const auto second = begin / MillisecondsOfSecond;
        const auto midnight = second - second % DaySeconds;
        const auto dayEnd = std::min(end, (midnight + DaySeconds) * MillisecondsOfSecond);
        const auto written = (midnight + mSink.WrittenUntil(midnight)) * MillisecondsOfSecond;
        mPending.Add({ std::max(begin, written), dayEnd, view });
        begin = dayEnd;
    }
}

bool Recorder::TakeInput(const Observation& seen)
{
    const auto now = mBefore->boot;
    const auto input = std::min(now - seen.idle.value_or(0), now);
    const bool isNew = input > mInput;
    if (isNew) {
        if (input - mInput <= mPatience) {
            mPending.Confirm(ToLocal(input));
        } else {
            mPending.Drop(ToLocal(input));
        }
        mInput = input;
    }
    mIsIdle = now - mInput > mPatience;
    if (mIsIdle) {
        mPending.DropAll();
    }
    return isNew;
}

void Recorder::Look(const Observation& seen)
{
    mIsLocked = seen.isLocked;
    mIsAsleep = seen.isAsleep;
    TakeWindow(seen.window);
}

void Recorder::TakeWindow(const std::optional<Sighting>& window)
{
    if (!window) {
        if (!mNoWindowSince) {
            mNoWindowSince = mBefore->boot;
        } else if (mBefore->boot - *mNoWindowSince >= BetweenWindows) {
            mView.reset();
            mIsDropped = false;
        }
        return;
    }
    mNoWindowSince.reset();
    auto made = mViews.Make(*window);
    mIsLocked = mIsLocked || made.kind == Seen::Kind::Locked;
    mIsDropped = made.kind == Seen::Kind::Dropped;
    mView.reset();
    if (made.kind == Seen::Kind::View) {
        mView = std::move(made.view);
    }
}

void Recorder::Settle(std::int64_t until)
{
    Decide(mPending.Take(until));
    const bool isNextOver = mWaitingEnd && (*mWaitingEnd + SlotSeconds) * MillisecondsOfSecond <= until;
    if (isNextOver) {
        File(mActivities.End());
        mWaitingEnd.reset();
    }
    if (!mWaitingEnd) {
        // Of these nothing goes to a later slot any more.
        std::erase_if(mUnwritten,
            [until](const auto& slot) { return (SlotEnd(slot) + SlotSeconds) * MillisecondsOfSecond <= until; });
    }
}

void Recorder::Flush()
{
    // What came after the last input was nobody's.
    mPending.DropAll();
    Settle(mBefore->local);
    Decide(mPending.TakeCounting());
    File(mActivities.End());
    mWaitingEnd.reset();
    mUnwritten.clear();
}

void Recorder::Decide(std::vector<OpenSlot> slots)
{
    for (auto& slot : slots) {
        auto picked = mPicker.Pick(slot.ToTimes());
        mUnwritten.push_back(std::move(slot));
        if (!picked) {
            continue;
        }
        if (!mProject.empty()) {
            picked->project = mProject;
            for (auto& time : picked->views) {
                time.view.project = mProject;
            }
        }
        mWaitingEnd = picked->start + SlotSeconds;
        File(mActivities.Add(std::move(*picked)));
    }
}

void Recorder::File(const std::optional<FiledSlot>& filed)
{
    if (!filed) {
        return;
    }
    const auto start = filed->midnight + filed->slot.start;
    std::erase_if(mUnwritten, [start](const auto& slot) { return slot.start <= start; });
    mSink.Add(*filed);
}

}
