#pragma once

#include "slots/SlotPicker.h"
#include "slots/ViewMaker.h"
#include "track/PendingTime.h"
#include "track/SlotSink.h"
#include "track/TrackMoment.h"
#include "track/TrackState.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// What is seen at a moment.
struct Observation
{
    /// The window in front; nothing when none is.
    std::optional<Sighting> window;
    /// Milliseconds since the last input; nothing when nobody can tell, which is taken as none.
    std::optional<std::int64_t> idle;
    bool isLocked = false;
    /// True when the machine is about to sleep.
    bool isAsleep = false;
};

/// Makes slots of what is seen, moment by moment: whose time it was, when somebody was there, and what becomes of that
/// when the clock is put, the machine sleeps or the screen is locked. It has no clock and no file.
class Recorder
{
public:
    /// Takes where the slots go, what makes views of windows, and who is told of what people should know.
    Recorder(SlotSink& sink, ViewMaker views, std::function<void(const std::string&)> warn);

    /// Goes on with what an earlier run has kept, at a moment.
    void Restore(const TrackState& state, const TrackMoment& now);
    /// What the next run is to go on with.
    TrackState State() const;

    /// What is seen now; it was what was seen last until now.
    void Observe(const TrackMoment& now, const Observation& seen);
    /// Lets slots go that wait, since the run ends.
    void End(const TrackMoment& now);

    /// Makes views by other rules from now on.
    void SetViews(ViewMaker views) { mViews = std::move(views); }
    /// Takes nobody to be there, for so many milliseconds or until it is resumed.
    void Pause(const TrackMoment& now, std::optional<std::int64_t> length);
    void Resume();
    /// Gives all lines from the slot in hand on a project; an empty one takes that back.
    void SetProject(const std::string& project) { mProject = project; }
    /// Forgets all time that isn't written yet and reaches behind a moment of local time.
    void Forget(std::int64_t from);

    bool IsPaused() const { return mIsPaused; }
    /// When the pause ends, as local time is now; nothing for one without an end.
    std::optional<std::int64_t> PausedUntil(const TrackMoment& now) const
    {
        return mPauseEnd ? std::optional(now.local - now.boot + *mPauseEnd) : std::nullopt;
    }
    const std::string& Project() const { return mProject; }
    /// What is in front; nothing when that is nothing, or nobody is there.
    std::optional<SlotView> InFront() const { return IsGone() ? std::nullopt : mView; }
    /// True when nobody is there.
    bool IsIdle() const { return mIsIdle || IsGone(); }
    /// Since when somebody or nobody is there: local time in milliseconds.
    std::int64_t Since() const { return mSince; }

private:
    /// True when nobody can be there, whatever the input.
    bool IsGone() const { return mIsLocked || mIsAsleep || mIsPaused; }
    std::int64_t ToLocal(std::int64_t boot) const { return mBefore->local - mBefore->boot + boot; }

    void Pass(const TrackMoment& now);
    void AddStretch(std::int64_t begin, std::int64_t end);
    void AddPart(std::int64_t begin, std::int64_t end, const std::optional<SlotView>& view);
    bool TakeInput(const Observation& seen);
    void Look(const Observation& seen);
    void TakeWindow(const std::optional<Sighting>& window);
    void Settle(std::int64_t until);
    void Flush();
    void Decide(std::vector<OpenSlot> slots);
    void File(const std::optional<FiledSlot>& filed);

    SlotSink& mSink;
    ViewMaker mViews;
    std::function<void(const std::string&)> mWarn;

    PendingTime mPending;
    SlotPicker mPicker;
    GrowingActivities mActivities;
    /// Slots that were taken from the pending time and aren't written yet.
    std::vector<OpenSlot> mUnwritten;
    /// Where the slot ends that waits for the next one, in seconds.
    std::optional<std::int64_t> mWaitingEnd;

    std::optional<TrackMoment> mBefore;
    /// The last input, on the clock that goes on while the machine sleeps.
    std::int64_t mInput = 0;
    /// How long after it somebody is still taken to be there.
    std::int64_t mPatience = 0;
    std::optional<SlotView> mView;
    /// Since when there is no window, on that clock.
    std::optional<std::int64_t> mNoWindowSince;
    /// True for a window that is taken as if nobody were there.
    bool mIsDropped = false;
    bool mIsLocked = false;
    bool mIsAsleep = false;
    bool mIsPaused = false;
    /// When the pause ends, on the clock that goes on while the machine sleeps.
    std::optional<std::int64_t> mPauseEnd;
    bool mIsIdle = false;
    std::int64_t mSince = 0;
    std::string mProject;
};

}
