#pragma once

#include "cli/ActivityRecord.h"

#include <string>
#include <vector>

namespace tempodial {

/// The activities as comma-separated values: a header line, a line each, CR LF behind each, quotes doubled.
///
/// What stands in a caption comes from other people, and a spreadsheet runs a field that begins with =, +, -, @ or a
/// tab as a formula. Such a text gets an apostrophe in front, which keeps it a text there.
std::string ActivityCsv(const std::vector<ActivityRecord>& activities);

}
