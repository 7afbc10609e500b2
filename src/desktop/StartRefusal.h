#pragma once

#include "session/ProfileOptions.h"

#include <exception>
#include <string>

namespace tempodial {

/// What a person is told when the program can't open its windows.
struct StartRefusal
{
    /// What is wrong.
    std::string reason;
    /// What can be done about it.
    std::string remedy;

    StartRefusal(const std::exception& failure, const ProfileOptions& options);
};

}
