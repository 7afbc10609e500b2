#pragma once

#include "review/Activity.h"
#include "session/Profile.h"
#include "terminal/ArgumentList.h"

#include <string>
#include <vector>

namespace tempodial {

/// The argument --project of a command that sums up activities: only those of some projects.
class ChosenProjects
{
public:
    /// Adds it to a command; it is kept here as it is parsed.
    void Declare(ArgumentList& arguments);
    /// Fails with a `UsageError` for a name that no project may have.
    void RequireUsable() const;
    /// Those of the activities that belong to these projects, all of them when none is named. Fails with a
    /// `CommandError` when there is no such project.
    ActivityStream Of(const Profile& profile, const ActivityStream& activities) const;

private:
    std::vector<std::string> mNames;
};

}
