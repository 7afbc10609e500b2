#pragma once

#include <string>

namespace tempodial {

/// The path of this module.
std::string ModulePath();
/// The folder that this module lies in, without a separator behind it.
std::string ModuleFolder();

}
