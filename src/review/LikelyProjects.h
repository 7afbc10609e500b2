#pragma once

#include "review/Activity.h"

#include <string>
#include <vector>

namespace tempodial {

/// The projects of a list in the order in which they are likely for some activities, by what past activities belong to:
/// those of the same application and description come first, then those of the same application, then the others, each
/// of these by their latest use, and those never used last, as they were. A project that all of the activities have
/// already is left out.
std::vector<std::string> LikelyProjects(
    const std::vector<std::string>& projects, const std::vector<Activity>& chosen, const std::vector<Activity>& past);

}
