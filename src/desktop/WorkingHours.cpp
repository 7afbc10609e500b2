#include "desktop/WorkingHours.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr std::int64_t LongSilence = 2 * 3600;
/// What is longer ago is silence whatever the days off.
constexpr std::int64_t LongestLookBack = 31;

}

WorkingHours::WorkingHours(std::int32_t start, std::int32_t end, std::int32_t dayBits)
    : mDayBits(static_cast<std::uint32_t>(dayBits))
{
    constexpr std::int32_t MinuteSeconds = 60;
    constexpr std::int32_t DayMinutes = DaySpan::WholeDay / MinuteSeconds;
    mHours.from = std::clamp(start, 0, DayMinutes) * MinuteSeconds;
    mHours.to = std::clamp(end, 0, DayMinutes) * MinuteSeconds;
    if (mHours.from >= mHours.to) {
        mHours = { 0, DaySpan::WholeDay };
    }
}

DaySpan WorkingHours::HoursOf(Date day) const
{
    constexpr std::uint32_t Sunday = 128;
    const auto bit = Sunday >> static_cast<std::uint32_t>(day.Weekday() - 1);
    return (mDayBits & bit) == 0 ? DaySpan() : mHours;
}

std::int64_t WorkingHours::WorkedBetween(Date from, Date to) const
{
    std::int64_t seconds = 0;
    for (auto day = from.Day(); day < to; day = day.AddDays(1)) {
        const auto hours = HoursOf(day);
        const auto begin = std::max(day.AddSeconds(hours.from), from);
        const auto end = std::min(day.AddSeconds(hours.to), to);
        seconds += std::max<std::int64_t>(SecondsBetween(begin, end), 0);
    }
    return seconds;
}

bool WorkingHours::IsTrackerSilent(Date lastLine, Date now) const
{
    const auto hours = HoursOf(now);
    const auto second = now.SecondOfDay();
    const auto from = std::max(lastLine, now.AddDays(-LongestLookBack));
    return second >= hours.from && second < hours.to && WorkedBetween(from, now) >= LongSilence;
}

}
