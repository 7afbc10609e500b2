#pragma once

#include "support/Program.h"

#include <string>
#include <vector>

namespace tempodial {

/// Does what the program does with these arguments inside the test, which is much quicker than to start it. What the
/// add-in says by messages still goes to the test's own standard error.
ProgramResult RunHere(const std::vector<std::string>& arguments);

}
