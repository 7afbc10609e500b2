#pragma once

#include <string>
#include <string_view>

namespace tempodial {

/// The text as it may go to a terminal: control characters but line feeds become visible signs, marks that turn the
/// direction of writing are left out but for isolates that end in their line, and bytes that aren't UTF-8 become
/// U+FFFD.
std::string Harmless(std::string_view text);
/// The same as one line: line ends and tabs become a blank.
std::string HarmlessLine(std::string_view text);
/// True for a text that holds letters written from right to left, or marks of direction.
bool TurnsDirection(std::string_view text);
/// A text of somebody else's that stands beside others in a line: isolated when it turns the direction, so that it
/// doesn't turn what stands beside it.
std::string Isolated(std::string_view text);
/// The same as one harmless line.
std::string IsolatedLine(std::string_view text);
/// The same between quotes, for messages.
std::string InQuotes(std::string_view text);
/// Columns that a harmless text takes on a terminal: wide characters take two, combining ones none.
int DisplayWidth(std::string_view text);
/// The begin of a harmless text that is wider than so many columns, at least one, with "…" behind it.
std::string Shortened(std::string_view text, int columns);

}
