#include "fuzz/FuzzTarget.h"
#include "review/Period.h"

namespace tempodial {

namespace {

/// A word for days as an argument has it.
void NameDays(std::string_view input)
{
    const auto now = Date::FromParts({ 2006, 10, 10, 17, 0, 0 });
    for (const int weekStart : { 1, 2, 7 }) {
        const auto days = Period::Named(input, now, [weekStart] { return weekStart; });
        if (days) {
            Hold(days->first <= days->last, "the first day isn't behind the last");
            Hold(days->first == days->first.Day() && days->last == days->last.Day(), "both are midnights");
        }
    }
}

}

TEMPODIAL_FUZZ_TARGET(Period, NameDays)

}
