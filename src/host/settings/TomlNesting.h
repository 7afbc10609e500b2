#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tempodial {

/// The number of the first line, from 1, at which brackets, or the parts of one name, are nested more than 32 deep in a
/// text of TOML; nothing when none is. Reading such a text would take the program's stack.
std::optional<std::size_t> LineNestedTooDeeply(std::string_view text);

}
