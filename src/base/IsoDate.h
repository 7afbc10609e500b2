#pragma once

#include "base/Date.h"

#include <string>

namespace tempodial {

/// A moment as `YYYY-MM-DDTHH:MM:SS`.
std::string IsoMoment(Date moment);
/// A day as `YYYY-MM-DD`.
std::string IsoDay(Date moment);

}
