#pragma once

#include "session/Profile.h"

namespace tempodial {

/// Gives a profile without rules for projects some that fit an invented working life.
void AddDemoProjects(const Profile& profile);

}
