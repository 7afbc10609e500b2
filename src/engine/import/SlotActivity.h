#pragma once

#include "base/Date.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// What one tracker line says about an activity.
struct SlotActivity
{
    std::string description;
    std::string application;
    std::string contacts;
    /// Minute boundaries crossed from start to end.
    std::int32_t duration = 0;
    Date startTime;
    Date endTime;
    std::string body;
    /// The project that was set in the tracker, empty when none was.
    std::string project;
};

}
