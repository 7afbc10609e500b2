#pragma once

#include "base/Date.h"
#include "session/Profile.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tempodial {

/// How the last sync of a profile has ended, as a line of a file in the profile tells.
struct LastSync
{
    /// When it ended, or began when it never came to its end.
    Date when;
    /// "whole", "partly", "interrupted" or "failed".
    std::string outcome;
    std::int32_t created = 0;
    std::int32_t extended = 0;
    std::int32_t detailed = 0;
    /// Lines that it couldn't read.
    std::int32_t unread = 0;

    /// Keeps it in a profile. Nothing depends on it, so that it doesn't wait for the disk, and isn't kept where it
    /// can't be.
    void Keep(const Profile& profile) const noexcept;
    /// What was kept, nothing when nothing was or nobody can tell.
    static std::optional<LastSync> Of(const Profile& profile);
};

}
