#pragma once

#include <string>

namespace tempodial {

/// A line of a text file as text: as it is when it is valid UTF-8, else read as Windows-1252.
std::string DecodedLine(std::string bytes);
/// A whole text file as text, each line decoded by itself.
std::string DecodedLines(std::string bytes);

}
