#include "desktop/SyncSchedule.h"

#include <algorithm>

namespace tempodial {

namespace {

/// Seconds. The product takes no wish that isn't forced in its first moments.
constexpr std::int64_t AfterStart = 6;
constexpr std::int64_t SlotLength = 300;
/// The tracker needs a moment to write a slot down.
constexpr std::int64_t AfterSlot = 15;
constexpr std::int64_t AfterGrowth = 2;
/// An import that is older than this is repeated when somebody looks.
constexpr std::int64_t Recent = 60;
/// How often the owner asks at the least, and after which silence the machine has slept.
constexpr std::int64_t LongestWait = 30;
constexpr std::int64_t Sleep = 2 * LongestWait;

}

SyncSchedule::SyncSchedule(Date start)
    : mEarliest(start.AddSeconds(AfterStart))
    , mDue(mEarliest)
    , mLastRun(start)
    , mLastAsked(start)
{
}

bool SyncSchedule::IsDue(Date now)
{
    const auto silence = SecondsBetween(mLastAsked, now);
    mLastAsked = now;
    if (silence < 0 || silence > Sleep) {
        mEarliest = std::min(mEarliest, now);
        BringForward(now);
    }
    return now >= mDue;
}

std::int64_t SyncSchedule::SecondsToWait(Date now) const
{
    return std::clamp<std::int64_t>(SecondsBetween(now, mDue), 1, LongestWait);
}

void SyncSchedule::Ran(Date now)
{
    mLastRun = now;
    mLastAsked = now; // nobody asks while it runs, however long that takes
    const auto slots = now.AddSeconds(-AfterSlot).Seconds() / SlotLength + 1;
    mDue = Date::FromSeconds(slots * SlotLength + AfterSlot);
}

void SyncSchedule::CameToFront(Date now)
{
    if (SecondsBetween(mLastRun, now) > Recent) {
        BringForward(now);
    }
}

void SyncSchedule::FileGrew(Date now)
{
    BringForward(now.AddSeconds(AfterGrowth));
}

void SyncSchedule::BringForward(Date moment)
{
    mDue = std::min(mDue, std::max(moment, mEarliest));
}

}
