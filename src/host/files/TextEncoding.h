#pragma once

#include <string>
#include <string_view>

namespace tempodial {

/// True when all of a text is valid UTF-8.
bool IsUtf8(std::string_view bytes);
/// A line of a text file as text: as it is when it is valid UTF-8, else read as Windows-1252.
std::string DecodedLine(std::string bytes);
/// A whole text file as text, each line decoded by itself.
std::string DecodedLines(std::string bytes);

}
