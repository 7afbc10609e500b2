#pragma once

#include "slots/SlotTimes.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// Some seconds of a program, the title being the place too.
struct Glance
{
    std::string program;
    std::string text;
    std::int64_t seconds;
    std::string place = {};
    std::string project = {};
};

/// The slot of that number after midnight with these seconds in it.
SlotTimes Slot(std::int64_t number, const std::vector<Glance>& glances, std::int64_t presence = SlotSeconds);

}
