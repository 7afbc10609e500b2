#include "desktop/AgendaGaps.h"

namespace tempodial {

namespace {

/// Minutes.
constexpr std::int32_t ShortestGap = 15;
constexpr std::int32_t LongestGap = 3 * 60;

}

std::vector<Gap> AgendaGaps(const std::vector<Activity>& activities, const Period& days)
{
    auto gaps = Gap::Between(activities, days, ShortestGap - 1);
    std::erase_if(gaps, [](const Gap& gap) { return gap.minutes > LongestGap; });
    return gaps;
}

bool ShowsLengthOf(const Gap& gap, const TimeScale& scale, int days)
{
    constexpr double HighEnough = 30;
    const auto height = [&] {
        const auto place
            = [&scale](Date moment) { return scale.PlaceOf(static_cast<std::int32_t>(moment.SecondOfDay())); };
        return place(gap.to) - place(gap.from);
    };
    return days == 1 || height() > HighEnough;
}

}
