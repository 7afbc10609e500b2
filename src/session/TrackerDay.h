#pragma once

#include <string>

namespace tempodial {

/// The day key in the name of a tracker's file that isn't finished, empty for any other name.
std::string TrackerDay(const std::string& fileName);

}
