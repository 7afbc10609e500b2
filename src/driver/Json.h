#pragma once

#include <nlohmann/json.hpp>

namespace tempodial {

/// JSON as the driver reads and writes it: members stay in their order.
using Json = nlohmann::ordered_json;

}
