#pragma once

#include <string>

namespace tempodial {

/// A text as a field of comma-separated values, in quotes where it needs them.
///
/// What stands in a caption comes from other people, and a spreadsheet runs a field that begins with =, +, -, @ or a
/// tab as a formula. Such a text gets an apostrophe in front, which keeps it a text there.
std::string CsvField(const std::string& text);

}
