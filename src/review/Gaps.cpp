#include "review/Gaps.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tempodial {

std::vector<Gap> Gap::Between(const std::vector<Activity>& activities, const Period& days, std::int32_t longer)
{
    std::vector<Gap> gaps;
    std::optional<Date> day;
    Date covered;
    for (const auto& activity : activities) {
        const bool isFirstOfDay = std::exchange(day, activity.start.Day()) != activity.start.Day();
        if (!isFirstOfDay && *day >= days.first && *day <= days.last && covered < activity.start) {
            const auto minutes = MinutesBetween(covered, activity.start);
            if (minutes > longer) {
                gaps.push_back({ covered, activity.start, minutes });
            }
        }
        covered = std::max(covered, activity.end);
    }
    return gaps;
}

}
