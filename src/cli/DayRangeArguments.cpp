#include "cli/DayRangeArguments.h"

#include "terminal/Arguments.h"
#include "terminal/UsageError.h"

#include <algorithm>

namespace tempodial {

void DayRangeArguments::Declare(ArgumentList& arguments)
{
    arguments.Optional("--from DAY", mFrom, "First day: YYYY-MM-DD, today or yesterday");
    arguments.Optional("--to DAY", mTo, "Last day");
}

DayRange DayRangeArguments::Days(Date now) const
{
    const auto today = now.Day();
    DayRange days { today, today };
    if (mFrom) {
        days.first = ToDay("--from", *mFrom, now);
    }
    if (mTo) {
        days.last = ToDay("--to", *mTo, now);
    }
    if (!mFrom) {
        days.first = std::min(today, days.last);
    }
    if (!mTo) {
        days.last = std::max(today, days.first);
    }
    if (days.first > days.last) {
        throw UsageError("--from " + IsoDay(days.first) + " is later than --to " + IsoDay(days.last)
            + ": give the earlier day as --from");
    }
    return days;
}

}
