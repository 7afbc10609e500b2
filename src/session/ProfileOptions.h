#pragma once

#include "base/Date.h"

#include <chrono>
#include <functional>
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
    /// How long to wait for a profile that another process holds.
    std::chrono::seconds wait { 0 };
    /// Told what is to be said of a profile that is used all the same, with what to do about it.
    std::function<void(const std::string& message)> warn = nullptr;
};

}
