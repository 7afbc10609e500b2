#pragma once

#include "base/Date.h"

#include <cstdint>
#include <optional>

namespace tempodial {

/// Seconds from the moment with which `Date` begins to that with which the system's time does, both at midnight.
inline constexpr std::int64_t SecondsTo1970 = std::int64_t { 25569 } * 86400;

/// The system's time at a local moment, in seconds; nothing when the system can't tell it. Looks at the system's time
/// zone each time.
std::optional<std::int64_t> UnixTimeOf(Date local);

}
