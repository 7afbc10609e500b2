#pragma once

#include <string>
#include <string_view>

namespace tempodial {

/// Reads bytes that aren't UTF-8 as text.
using TextDecoder = std::string (*)(std::string_view bytes);

/// Bytes in Windows-1252 as text.
std::string FromWindows1252(std::string_view bytes);
/// A line of a text file as text: as it is when it is valid UTF-8, else decoded.
std::string DecodedLine(std::string bytes, TextDecoder decoder = FromWindows1252);
/// A whole text file as text, each line decoded by itself.
std::string DecodedLines(std::string bytes, TextDecoder decoder = FromWindows1252);

}
