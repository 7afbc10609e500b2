#include "slots/SlotTimes.h"

#include <algorithm>

namespace tempodial {

void SlotTimes::Add(const SlotView& view, std::int64_t seconds)
{
    AddTime(views, view, seconds);
}

void AddTime(std::vector<ViewTime>& views, const SlotView& view, std::int64_t seconds)
{
    const auto found
        = std::find_if(views.begin(), views.end(), [&view](const auto& other) { return other.view == view; });
    if (found == views.end()) {
        views.push_back({ view, seconds });
    } else {
        found->seconds += seconds;
    }
}

}
