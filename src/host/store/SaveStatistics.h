#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// A save that failed.
struct FailedSave
{
    std::string subject;
    std::string message;
};

/// What was saved since a mark; what a failed commit undid doesn't count.
struct SaveStatistics
{
    /// First saves of an item.
    std::int32_t created = 0;
    /// Saves with another end than before.
    std::int32_t extended = 0;
    /// All other saves.
    std::int32_t detailed = 0;
    std::vector<FailedSave> failed;
};

}
