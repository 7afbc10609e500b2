#pragma once

#include "review/ActivityRecord.h"

#include <string>
#include <vector>

namespace tempodial {

/// The activities as comma-separated values: a header line, a line each, CR LF behind each, quotes doubled.
std::string ActivityCsv(const std::vector<ActivityRecord>& activities);

}
