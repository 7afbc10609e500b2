#include "cli/ChosenProjects.h"

#include "base/Text.h"
#include "cli/ProjectNames.h"

#include <algorithm>

namespace tempodial {

void ChosenProjects::Declare(ArgumentList& arguments)
{
    arguments.Repeated("--project NAME", mNames, "Only that project, or \"No Project\"; may be repeated");
}

void ChosenProjects::RequireUsable() const
{
    for (const auto& name : mNames) {
        RequireProjectName(name);
    }
}

void ChosenProjects::Choose(const Profile& profile, std::vector<Activity>& activities) const
{
    if (mNames.empty()) {
        return;
    }
    for (const auto& name : mNames) {
        RequireKnownProject(profile, name);
    }
    activities.erase(std::remove_if(activities.begin(), activities.end(),
                         [this](const Activity& activity) {
                             return std::none_of(mNames.begin(), mNames.end(),
                                 [&](const auto& name) { return EqualIgnoringCase(name, ProjectNameOf(activity)); });
                         }),
        activities.end());
}

}
