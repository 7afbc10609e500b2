#pragma once

#include "base/Date.h"

#include <string>

namespace tempodial {

/// The day key in the name of a tracker's file that isn't finished, empty for any other name.
std::string TrackerDay(const std::string& fileName);

/// The day of such a key.
Date DayOfKey(const std::string& key);

}
