#pragma once

#include "platform/system/TimeZone.h"

#include <memory>
#include <optional>
#include <string>

namespace tempodial {

/// The time zone of an option, the system's without one. Fails with `UsageError` for a name that there isn't, with the
/// zone that is likely meant.
std::unique_ptr<TimeZone> ToZone(const std::optional<std::string>& name);

}
