#include "review/ActivityGroup.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <functional>
#include <iterator>
#include <string_view>
#include <tuple>
#include <unordered_map>

namespace tempodial {

namespace {

using GroupKey = std::pair<std::string_view, std::string_view>;

struct GroupKeyHash
{
    std::size_t operator()(const GroupKey& key) const
    {
        constexpr std::size_t Factor = 31;
        const std::hash<std::string_view> hash;
        return hash(key.first) * Factor + hash(key.second);
    }
};

}

std::vector<ActivityGroup> ActivityGroup::Unassigned(const ActivityStream& activities)
{
    // The keys are texts of the groups, which stay where they are.
    std::deque<ActivityGroup> known;
    std::unordered_map<GroupKey, ActivityGroup*, GroupKeyHash> places;
    activities([&](const Activity& activity) {
        if (!IsUnassigned(activity)) {
            return;
        }
        auto place = places.find({ activity.type, activity.description });
        if (place == places.end()) {
            auto& group
                = known.emplace_back(ActivityGroup { activity.type, activity.description, 0, 0, activity.start });
            place = places.emplace(GroupKey(group.application, group.description), &group).first;
        }
        auto& group = *place->second;
        group.minutes += activity.duration;
        ++group.times;
        group.last = std::max(group.last, activity.start);
    });
    std::vector<ActivityGroup> groups(std::make_move_iterator(known.begin()), std::make_move_iterator(known.end()));
    const auto rank = [](const ActivityGroup& group) {
        return std::tuple(-group.minutes, std::string_view(group.application), std::string_view(group.description));
    };
    std::sort(groups.begin(), groups.end(),
        [&rank](const ActivityGroup& one, const ActivityGroup& other) { return rank(one) < rank(other); });
    return groups;
}

}
