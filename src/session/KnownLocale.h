#pragma once

#include <string>

namespace tempodial {

/// True when a profile can be opened with the locale of that name, such as en_US or de_DE.UTF-8.
bool IsKnownLocale(const std::string& name);

}
