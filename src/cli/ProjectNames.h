#pragma once

#include "cli/CommandError.h"
#include "session/Profile.h"

#include <string>
#include <vector>

namespace tempodial {

/// What holds for the name of a project in every command, whatever the case of its letters.

/// True for what activities without a project have in its place.
bool IsNoProject(const std::string& name);
/// Fails with a `UsageError` for a name that no project may have: an empty or blank one, or one with control
/// characters.
void RequireProjectName(const std::string& name);
/// What is told of a name that no project has, with the nearest of those that there are.
CommandError UnknownProject(const std::string& name, const std::vector<std::string>& known);
/// Fails with a `CommandError` unless the project is in the profile's list, an activity has it, or it is No Project.
void RequireKnownProject(const Profile& profile, const std::string& name);

}
