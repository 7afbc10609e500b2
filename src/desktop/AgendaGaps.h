#pragma once

#include "desktop/TimeScale.h"
#include "review/Gaps.h"

#include <vector>

namespace tempodial {

/// The gaps that an agenda tells of: those of 15 minutes to 3 hours between activities of one day, which come in order
/// of start.
std::vector<Gap> AgendaGaps(const std::vector<Activity>& activities, const Period& days);
/// True when the agenda says a gap's length: always where it shows one day, else where the gap is high enough.
bool ShowsLengthOf(const Gap& gap, const TimeScale& scale, int days);

}
