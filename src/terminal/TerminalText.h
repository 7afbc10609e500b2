#pragma once

#include <string>
#include <string_view>

namespace tempodial {

/// The text as it may go to a terminal: control characters but line feeds become visible signs, marks that turn the
/// direction of writing are left out, and bytes that aren't UTF-8 become U+FFFD.
std::string Harmless(std::string_view text);
/// The same as one line: line ends and tabs become a blank.
std::string HarmlessLine(std::string_view text);
/// Columns that a harmless text takes on a terminal: wide characters take two, combining ones none.
int DisplayWidth(std::string_view text);

}
