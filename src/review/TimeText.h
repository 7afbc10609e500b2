#pragma once

#include <cstdint>
#include <string>

namespace tempodial {

/// Minutes as hours and minutes, such as 0:05 or 12:30.
std::string HourText(std::int64_t minutes);
/// Minutes as hours with two decimals behind a point, a half going up, such as 0.25.
std::string DecimalHours(std::int64_t minutes);

}
