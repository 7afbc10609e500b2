#pragma once

#include "review/ActivityRecord.h"

#include <string>
#include <vector>

namespace tempodial {

/// The activities as an iCalendar document. Its times are those of the wall clock, in no zone, as the log's are, but
/// for the moments of the last saves; the same activities give the same bytes at any time.
std::string ActivityCalendar(const std::vector<ActivityRecord>& activities);

}
