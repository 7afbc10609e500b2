#pragma once

#include "session/ProfileOptions.h"
#include "terminal/ArgumentList.h"

#include <optional>
#include <string>

namespace tempodial {

/// The arguments that name the profile and its surroundings, as every program takes them.
class ProfileArguments
{
public:
    /// Adds them to a program's.
    void Declare(ArgumentList& arguments);
    /// What was parsed; fails with `UsageError`.
    ProfileOptions Options() const;

private:
    std::optional<std::string> mProfile;
    std::optional<std::string> mLocale;
    std::optional<std::string> mNow;
};

}
