#pragma once

#include "cli/Command.h"

#include <memory>
#include <vector>

namespace tempodial {

/// All commands of the program, in the order in which the help lists them.
std::vector<std::unique_ptr<Command>> AllCommands();

}
