#pragma once

#include "session/ProfileOptions.h"

#include <optional>
#include <string>

namespace CLI { // NOLINT(readability-identifier-naming): the parser's own name
class App;
}

namespace tempodial {

/// The arguments that name the profile and its surroundings, as every program takes them.
class ProfileArguments
{
public:
    /// Adds them to a program's.
    void Declare(CLI::App& app);
    /// What was parsed; fails with `UsageError`.
    ProfileOptions Options() const;

private:
    std::optional<std::string> mProfile;
    std::optional<std::string> mLocale;
    std::optional<std::string> mNow;
};

}
