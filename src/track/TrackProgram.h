#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// The recorder as a program, by its arguments; gives the exit status. It is run by `tempodial track`, which explains
/// the arguments to people.
int RunTrackProgram(const std::vector<std::string>& arguments);

}
