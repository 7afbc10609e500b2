#pragma once

#include "support/Program.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// Runs the program as the settings say, with an environment.
ProgramResult RunTempodialIn(const RunSettings& settings, const std::vector<std::string>& arguments,
    const std::vector<std::string>& environment);

/// Does something in a process of its own, which then ends, under observation; gives the number of system calls.
/// Nothing when this system forbids that.
std::optional<std::int64_t> DoObserved(const std::function<void()>& work, const RunObserver& observer);

}
