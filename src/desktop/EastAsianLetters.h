#pragma once

#include "review/Activity.h"

#include <vector>

namespace tempodial {

/// True when titles or projects hold Chinese, Japanese or Korean letters, for which many systems have no font.
bool HoldEastAsianLetters(const std::vector<Activity>& activities);

}
