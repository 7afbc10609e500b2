#pragma once

#include <string>

namespace tempodial {

/// A path of this system as programs under Wine have it.
std::string ToWindowsPath(const std::string& path);
/// A path as programs under Wine have it as one of this system; another text stays as it is.
std::string FromWindowsPath(const std::string& path);

}
