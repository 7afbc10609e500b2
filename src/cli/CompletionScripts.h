#pragma once

#include "terminal/CommandOutline.h"

#include <string>
#include <vector>

namespace tempodial {

/// The scripts by which shells complete the program's arguments. They hold its commands and options as they are
/// declared, and ask the program for the names of projects and activities.

std::string BashCompletion(const std::vector<CommandOutline>& commands);
std::string ZshCompletion(const std::vector<CommandOutline>& commands);
std::string FishCompletion(const std::vector<CommandOutline>& commands);

}
