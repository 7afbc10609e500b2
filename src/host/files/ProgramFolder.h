#pragma once

#include <string>

namespace tempodial {

/// The path of a name in the tree that the running program belongs to, both installed and in a build tree: the program
/// itself lies in "bin" there.
std::string InProgramFolder(const std::string& name);

}
