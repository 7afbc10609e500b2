#pragma once

#include "review/Activity.h"
#include "session/Profile.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tempodial {

/// An argument that names one activity: by its number, @N, or by a moment within it.
class ActivityArgument
{
public:
    /// Reads the argument; an hour and a minute alone are those of today. Fails with a `UsageError`.
    ActivityArgument(std::string text, Date today);

    /// The activity. Fails with a `CommandError` when there is no such one, and as the store does.
    Activity Find(const Profile& profile) const;

private:
    std::string mText;
    /// The number; nothing when a moment is given.
    std::optional<std::int64_t> mNumber;
    Date mMoment;
};

}
