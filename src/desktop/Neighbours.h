#pragma once

#include "review/Activity.h"
#include "session/Profile.h"

#include <cstdint>
#include <vector>

namespace tempodial {

enum class Side { Before, Behind };

/// The activities of a log on one side of that of a number, the nearest first, and no more than a menu has room for;
/// none when that one is gone. Fails as the store does.
std::vector<Activity> NeighboursOf(const Profile& profile, std::int64_t number, Side side);

}
