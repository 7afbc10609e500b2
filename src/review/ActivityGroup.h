#pragma once

#include "review/Activity.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// Activities of the same application and description.
struct ActivityGroup
{
    std::string application;
    std::string description;
    std::int64_t minutes = 0;
    /// How many there are.
    std::int64_t times = 0;
    /// The start of the latest.
    Date last;

    /// Groups those activities that have no project, by size and then by name.
    static std::vector<ActivityGroup> Unassigned(const ActivityStream& activities);
};

}
