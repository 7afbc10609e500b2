#pragma once

#include "session/Profile.h"
#include "session/ProfileOptions.h"

#include <string>

namespace tempodial {

/// The profile that the options name, opened. Fails with `ProfileInUse` or `ProfileError`.
Profile OpenProfile(const ProfileOptions& options);

/// The same, opened for reading: it makes, changes and locks nothing. Fails with `ProfileError`.
Profile ReadProfile(const ProfileOptions& options);

/// The absolute path of the profile's folder that the options name; fails with `ProfileError` when it can't be used.
std::string ProfilePath(const ProfileOptions& options);

/// The path of a file in the profile's data folder.
std::string DataPath(const Profile& profile, const std::string& name);

}
