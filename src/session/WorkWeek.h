#pragma once

#include "host/system/TomlRegistry.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tempodial {

/// The days and hours of a working week, as the host's calendar has them and reports go by them.
struct WorkWeek
{
    /// Minutes of a day at which work begins and ends.
    std::int32_t start = 480;
    std::int32_t end = 1020;
    /// The days of work: a bit each, Sunday 128 to Saturday 2.
    std::int32_t days = 124;

    friend bool operator==(const WorkWeek&, const WorkWeek&) = default;

    /// Reads a text such as "Mon-Fri 09:00-17:30" or "Mon,Wed-Thu 08:00-12:00"; nothing for what is none.
    static std::optional<WorkWeek> FromText(const std::string& text);
    /// The same text.
    std::string Text() const;

    /// What is set in the registry, part for part, else as above.
    static WorkWeek In(const TomlRegistry& registry);
    /// Sets it in the registry, where the usual one isn't kept. Fails as `TomlRegistry::Write` does.
    void Keep(TomlRegistry& registry) const;
};

}
