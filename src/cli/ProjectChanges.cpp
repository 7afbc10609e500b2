#include "cli/ProjectChanges.h"

#include "cli/ActivityList.h"

#include <algorithm>
#include <optional>

namespace tempodial {

ProjectChanges::ProjectChanges(const Profile& profile, const Period& days)
    : mProfile(profile)
    , mDays(days)
    , mFormer(Projects())
{
}

std::size_t ProjectChanges::Count() const
{
    const auto projects = Projects();
    return static_cast<std::size_t>(std::count_if(projects.begin(), projects.end(), [this](const auto& entry) {
        const auto former = mFormer.find(entry.first);
        return former != mFormer.end() && former->second != entry.second;
    }));
}

std::unordered_map<std::string, std::string> ProjectChanges::Projects() const
{
    std::unordered_map<std::string, std::string> projects;
    for (const auto& activity : ActivitiesOf(mProfile, mDays, std::nullopt)) {
        projects.emplace(activity->EntryID(), ProjectOf(activity));
    }
    return projects;
}

}
