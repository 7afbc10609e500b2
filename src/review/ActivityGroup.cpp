#include "review/ActivityGroup.h"

#include <algorithm>
#include <cstddef>
#include <functional>
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

std::vector<ActivityGroup> ActivityGroup::Unassigned(const std::vector<Activity>& activities)
{
    std::vector<ActivityGroup> groups;
    std::unordered_map<GroupKey, std::size_t, GroupKeyHash> places;
    for (const auto& activity : activities) {
        if (!IsUnassigned(activity)) {
            continue;
        }
        const auto [place, isNew] = places.emplace(GroupKey(activity.type, activity.description), groups.size());
        if (isNew) {
            groups.push_back({ activity.type, activity.description, 0, 0, activity.start });
        }
        auto& group = groups[place->second];
        group.minutes += activity.duration;
        ++group.times;
        group.last = std::max(group.last, activity.start);
    }
    const auto rank = [](const ActivityGroup& group) {
        return std::tuple(-group.minutes, std::string_view(group.application), std::string_view(group.description));
    };
    std::sort(groups.begin(), groups.end(),
        [&rank](const ActivityGroup& one, const ActivityGroup& other) { return rank(one) < rank(other); });
    return groups;
}

}
