#pragma once

#include "base/Date.h"
#include "base/IsoDate.h"
#include "platform/system/Registry.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tempodial {

/// The arguments of one kind are read here; `name` is the argument's name for the message. What can't be read fails
/// with a `UsageError`.

/// A moment `YYYY-MM-DDTHH:MM`.
Date ToMoment(std::string_view name, std::string_view text);
/// A moment `YYYY-MM-DDTHH:MM`, or a time `HH:MM` of a day.
Date ToMomentOn(Date day, std::string_view name, std::string_view text);
/// A moment `YYYY-MM-DDTHH:MM:SS`.
Date ToMomentWithSeconds(std::string_view name, std::string_view text);
/// A whole number between two bounds, both included.
std::int32_t ToCount(std::string_view name, std::string_view text, std::int32_t least, std::int32_t most);

/// The number of an activity, `@12`.
std::int64_t ToActivityNumber(std::string_view text);

/// A hive of the registry: `HKCU` or `HKLM`, in any case.
Hive ToHive(std::string_view text);

}
