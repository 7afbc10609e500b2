#pragma once

#include "slots/Program.h"

#include <string_view>

namespace tempodial {

/// True for the title of a private window: a browser, or a program that nobody knows, says so in the title's last part
/// or in brackets, in one of the languages in which browsers are used most. In a page's or a file's own name these
/// words say nothing.
bool IsPrivateWindow(std::string_view title, const Program& program);

}
