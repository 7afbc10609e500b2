#pragma once

#include "base/Date.h"
#include "session/ProfileOptions.h"

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>

namespace tempodial {

/// A backup that can't be brought back; the message says why and what to do.
class RestoreError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A profile that was brought back.
struct RestoredProfile
{
    std::string path;
    std::size_t files = 0;
    /// Where the folder is that was in its place, nothing when there was none, or an empty one.
    std::optional<std::string> former;
};

/// Brings the profile of a backup back as the one that the options name, as a whole or not at all. A profile with
/// activities in it is in the way unless it is to be replaced; what stood there is kept beside, under the moment given.
/// Fails with `RestoreError`, with `ProfileInUse` or `ProfileError`, and as files do.
RestoredProfile RestoreProfile(const ProfileOptions& options, const std::string& backup, bool replaces, Date now);

}
