#pragma once

#include "review/Activity.h"
#include "review/RuleTrial.h"

#include <string>

namespace tempodial {

/// Why an activity has its project, in one sentence; also when the rules would now give another.
std::string WhySentence(const Activity& activity, const RuleTrial& rules);

}
