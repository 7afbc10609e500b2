#pragma once

#include "base/Date.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// An activity of a work log, as far as people ask about it. A property that an item lacks is empty.
struct Activity
{
    std::int64_t number = 0;
    std::string entryId;
    Date start;
    Date end;
    /// Minute boundaries from start to end.
    std::int32_t duration = 0;
    /// As stored; "No Project" for none.
    std::string project;
    std::string type;
    std::string description;
    std::string people;
    /// A person chose the project.
    bool isProjectByHand = false;
};

/// The project of an activity, "No Project" for one that lacks it.
const std::string& ProjectNameOf(const Activity& activity);
/// True for an activity that belongs to no project.
bool IsUnassigned(const Activity& activity);

}
