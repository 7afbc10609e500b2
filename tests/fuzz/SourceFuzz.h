#pragma once

#include <string_view>

namespace tempodial {

/// A file of a source is read, and all of it planned for an import; what is said of it holds.
void PlanSource(std::string_view source, std::string_view input);

}
