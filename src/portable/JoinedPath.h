#pragma once

#include <string>

namespace tempodial {

/// A path and a name joined by one separator, the one that the path has or else the system's; the parts stay as they
/// are otherwise.
std::string JoinedPath(const std::string& path, const std::string& name, char separator);

}
