#pragma once

#include "review/Activity.h"
#include "review/Period.h"
#include "session/Profile.h"

#include <vector>

namespace tempodial {

/// The activities of a profile's work log that start in a span of days, in order of start; none when there is no work
/// log. Fails as the store does.
std::vector<Activity> ActivitiesStartingIn(const Profile& profile, const Period& days);
/// Those that have some time in common with the span, wherever they start.
std::vector<Activity> ActivitiesTouching(const Profile& profile, const Period& days);

}
