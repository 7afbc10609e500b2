#include "desktop/Neighbours.h"

#include "review/ActivityReader.h"

#include <algorithm>
#include <iterator>

namespace tempodial {

namespace {

constexpr std::size_t MostNeighbours = 10;
/// The days that are looked through, further ones only when the nearer don't hold enough.
constexpr int DaysAround[] { 7, 56, 448 };

}

std::vector<Activity> NeighboursOf(const Profile& profile, std::int64_t number, Side side)
{
    const auto own = ActivityNumbered(profile, number);
    std::vector<Activity> found;
    for (const auto days : DaysAround) {
        if (!own || found.size() >= MostNeighbours) {
            break;
        }
        const auto day = own->start.Day();
        const bool isBehind = side == Side::Behind;
        found = ActivitiesStartingIn(
            profile, isBehind ? Period { day, day.AddDays(days) } : Period { day.AddDays(-days), day });
        const auto at = std::find_if(
            found.begin(), found.end(), [number](const Activity& activity) { return activity.number == number; });
        if (isBehind) {
            found.erase(found.begin(), at == found.end() ? at : std::next(at));
        } else {
            found.erase(at, found.end());
            std::reverse(found.begin(), found.end());
        }
    }
    found.resize(std::min(found.size(), MostNeighbours));
    return found;
}

}
