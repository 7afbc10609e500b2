#pragma once

#include <cstdint>

namespace tempodial {

/// What the activities of a report are grouped by, as the registry keeps it.
struct ReportTypes
{
    static constexpr std::int32_t Project = 1;
    static constexpr std::int32_t Application = 2;
    static constexpr std::int32_t Description = 3;
    static constexpr std::int32_t Date = 4;
};

}
