#pragma once

#include "base/Date.h"

#include <optional>
#include <string>

namespace tempodial {

/// The options of every command.
struct Options
{
    /// The profile folder, nothing for the user's own.
    std::optional<std::string> profile;
    /// The name of the user's locale, nothing for that of the environment.
    std::optional<std::string> locale;
    /// The present moment at the start of the run, nothing for that of the system.
    std::optional<Date> now;
    /// The answer is one JSON document.
    bool json = false;
    /// Neither progress nor a summary is shown.
    bool quiet = false;
};

}
