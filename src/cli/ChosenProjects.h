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
    /// Takes those activities away that belong to other projects. Fails with a `CommandError` when there is no such
    /// project.
    void Choose(const Profile& profile, std::vector<Activity>& activities) const;

private:
    std::vector<std::string> mNames;
};

}
