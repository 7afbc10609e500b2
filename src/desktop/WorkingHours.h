#pragma once

#include "base/Date.h"
#include "desktop/DaySpan.h"

#include <cstdint>

namespace tempodial {

/// When a person works, as the product knows it: outside of that the agenda is a shade darker, and a tracker that is
/// silent surprises nobody.
class WorkingHours
{
public:
    /// Takes the begin and the end of a working day in minutes after midnight, and a bit for each day of the week, of
    /// which 128 is Sunday, 64 Monday and so on. Where the begin isn't before the end, all of the day is worked.
    WorkingHours(std::int32_t start, std::int32_t end, std::int32_t dayBits);

    /// The working hours of a day; no time on a day off.
    DaySpan HoursOf(Date day) const;
    /// The seconds of working hours from one moment to another, 0 when that is earlier.
    std::int64_t WorkedBetween(Date from, Date to) const;
    /// True when a person at work is to be told that the tracker writes nothing: it is a working hour, and the last
    /// line is two of them old.
    bool IsTrackerSilent(Date lastLine, Date now) const;

private:
    DaySpan mHours;
    std::uint32_t mDayBits;
};

}
