#include "cli/ProjectArgument.h"

#include "cli/ActivityList.h"
#include "cli/ProjectNames.h"

namespace tempodial {

void ProjectArgument::Declare(ArgumentList& arguments)
{
    arguments.Optional("--project NAME", mName, "Only activities of that project, or of \"No Project\"");
}

void ProjectArgument::RequireUsable() const
{
    if (mName) {
        RequireProjectName(*mName);
    }
}

std::vector<Ref<AppointmentItem>> ProjectArgument::ActivitiesOf(const Profile& profile, const Period& days) const
{
    auto activities = tempodial::ActivitiesOf(profile, days, mName);
    if (mName && activities.empty()) {
        RequireKnownProject(profile, *mName);
    }
    return activities;
}

}
