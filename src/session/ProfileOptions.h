#pragma once

#include "base/Date.h"

#include <optional>
#include <string>

namespace tempodial {

/// Which profile a program opens, and in which surroundings.
struct ProfileOptions
{
    /// The profile folder, nothing for the user's own.
    std::optional<std::string> profile;
    /// The name of the user's locale, nothing for that of the environment.
    std::optional<std::string> locale;
    /// The present moment at the start of the run, nothing for that of the system.
    std::optional<Date> now;
};

}
