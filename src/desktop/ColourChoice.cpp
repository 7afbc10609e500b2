#include "desktop/ColourChoice.h"

namespace tempodial {

Coloured ColouredBy(ColourChoice choice, const std::vector<Activity>& shown)
{
    constexpr std::int64_t Quarter = 4;
    if (choice != ColourChoice::Automatic) {
        return choice == ColourChoice::Project ? Coloured::Project : Coloured::Application;
    }
    std::int64_t all = 0;
    std::int64_t assigned = 0;
    for (const auto& activity : shown) {
        all += activity.duration;
        assigned += IsUnassigned(activity) ? 0 : activity.duration;
    }
    return assigned * Quarter < all ? Coloured::Application : Coloured::Project;
}

}
