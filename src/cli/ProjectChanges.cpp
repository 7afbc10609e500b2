#include "cli/ProjectChanges.h"

#include "review/ActivityReader.h"

#include <cstdint>
#include <string>
#include <unordered_map>

namespace tempodial {

ProjectChanges::ProjectChanges(const Profile& profile, const Period& days)
    : mProfile(profile)
    , mDays(days)
    , mFormer(ActivitiesStartingIn(profile, days))
{
}

ProjectMoves ProjectChanges::Moves() const
{
    std::unordered_map<std::int64_t, std::string> projects;
    for (const auto& activity : ActivitiesStartingIn(mProfile, mDays)) {
        projects.emplace(activity.number, ProjectNameOf(activity));
    }
    ProjectMoves moves;
    for (const auto& activity : mFormer) {
        const auto now = projects.find(activity.number);
        if (now != projects.end() && now->second != ProjectNameOf(activity)) {
            moves.Add(ProjectNameOf(activity), now->second, activity.duration);
        }
    }
    return moves;
}

}
