#pragma once

#include <string>
#include <string_view>

namespace tempodial {

/// A word of a command as the key Exec of a desktop entry has it: in quotes, and what has a meaning there is marked.
std::string DesktopEntryWord(std::string_view word);

}
