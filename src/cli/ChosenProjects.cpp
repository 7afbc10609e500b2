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

ActivityStream ChosenProjects::Of(const Profile& profile, const ActivityStream& activities) const
{
    if (mNames.empty()) {
        return activities;
    }
    for (const auto& name : mNames) {
        RequireKnownProject(profile, name);
    }
    return [activities, names = mNames](const std::function<void(const Activity&)>& take) {
        activities([&](const Activity& activity) {
            if (std::any_of(names.begin(), names.end(),
                    [&](const auto& name) { return EqualIgnoringCase(name, ProjectNameOf(activity)); })) {
                take(activity);
            }
        });
    };
}

}
