#pragma once

#include <nlohmann/json_fwd.hpp>

namespace tempodial {

/// JSON as the driver reads and writes it: members stay in their order. Only what looks
/// into a value includes the library's slow header.
using Json = nlohmann::ordered_json;

}
