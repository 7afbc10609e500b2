#include "review/LikelyProjects.h"

#include "base/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace tempodial {

namespace {

/// How much of an activity is like one of those chosen.
enum class Likeness { Whole, Application, None, Unused };

/// What activities are chosen for, looked at from one that is not.
class ChosenWork
{
public:
    explicit ChosenWork(const std::vector<Activity>& chosen)
    {
        for (const auto& activity : chosen) {
            mNumbers.insert(activity.number);
            mApplications.insert(activity.type);
            mTexts.emplace(activity.type, activity.description);
        }
    }

    bool Has(const Activity& activity) const { return mNumbers.contains(activity.number); }
    Likeness LikenessOf(const Activity& activity) const
    {
        if (mTexts.contains({ activity.type, activity.description })) {
            return Likeness::Whole;
        }
        return mApplications.contains(activity.type) ? Likeness::Application : Likeness::None;
    }

private:
    std::set<std::int64_t> mNumbers;
    std::set<std::string_view> mApplications;
    std::set<std::pair<std::string_view, std::string_view>> mTexts;
};

struct Candidate
{
    std::string name;
    Likeness likeness = Likeness::Unused;
    Date latest;

    void Note(Likeness seen, Date start)
    {
        if (seen < likeness) {
            likeness = seen;
            latest = start;
        } else if (seen == likeness) {
            latest = std::max(latest, start);
        }
    }
};

}

std::vector<std::string> LikelyProjects(
    const std::vector<std::string>& projects, const std::vector<Activity>& chosen, const std::vector<Activity>& past)
{
    std::vector<Candidate> candidates;
    std::unordered_map<std::string, std::size_t> places;
    for (const auto& project : projects) {
        const bool isOfAll = !chosen.empty()
            && std::all_of(chosen.begin(), chosen.end(),
                [&](const Activity& activity) { return EqualIgnoringCase(activity.project, project); });
        if (!isOfAll) {
            places.emplace(Fold(project), candidates.size());
            candidates.push_back({ project });
        }
    }
    const ChosenWork work(chosen);
    for (const auto& activity : past) {
        if (const auto place = places.find(Fold(activity.project)); place != places.end() && !work.Has(activity)) {
            candidates[place->second].Note(work.LikenessOf(activity), activity.start);
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(), [](const Candidate& one, const Candidate& other) {
        return std::tuple(one.likeness, other.latest) < std::tuple(other.likeness, one.latest);
    });
    std::vector<std::string> names;
    names.reserve(candidates.size());
    for (auto& candidate : candidates) {
        names.push_back(std::move(candidate.name));
    }
    return names;
}

}
