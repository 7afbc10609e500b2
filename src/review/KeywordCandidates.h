#pragma once

#include "review/Activity.h"

#include <string>
#include <vector>

namespace tempodial {

/// The words that a rule for an activity's project is offered, as the keyword list on an activity's page has them: its
/// description without people, its application in quotes, and each of its people.
std::vector<std::string> KeywordCandidates(const Activity& activity);

}
