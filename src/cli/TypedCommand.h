#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// A command as it was typed, without the options that only say in which surroundings it runs and in which form it
/// answers; an argument that a shell would take apart stands in quotation marks.
std::string TypedCommand(const std::vector<std::string>& arguments);

}
