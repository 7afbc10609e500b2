#pragma once

#include <cstdint>
#include <string>

namespace tempodial {

/// The seconds of a length of time such as "30m", "1h30m" or "90s"; `name` is the argument's name for the message.
/// Fails with a `UsageError` for another text, for none and for more than a year.
std::int64_t ToSeconds(const std::string& name, const std::string& text);

}
