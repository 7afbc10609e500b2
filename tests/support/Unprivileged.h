#pragma once

#include <string>
#include <unistd.h>
#include <vector>

namespace tempodial {

/// The user that programs run as which refuse to be run by the administrator.
inline constexpr uid_t UnprivilegedUser = 65534;

/// A command that runs without the administrator's rights, whoever runs it.
inline std::vector<std::string> Unprivileged(std::vector<std::string> command)
{
    if (::getuid() == 0) {
        const auto number = std::to_string(UnprivilegedUser);
        const std::vector<std::string> front { "setpriv", "--reuid", number, "--regid", number, "--clear-groups" };
        command.insert(command.begin(), front.begin(), front.end());
    }
    return command;
}

}
