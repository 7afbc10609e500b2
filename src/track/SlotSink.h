#pragma once

#include "slots/ActivityWriter.h"

#include <cstdint>

namespace tempodial {

/// Where slots go once it is decided what they are.
class SlotSink
{
public:
    SlotSink() = default;
    virtual ~SlotSink() = default;
    SlotSink(const SlotSink&) = delete;
    SlotSink& operator=(const SlotSink&) = delete;

    /// Up to when lines are there already, of the day of that midnight: seconds after it, 0 when there are none.
    virtual std::int64_t WrittenUntil(std::int64_t midnight) = 0;
    /// Takes a slot.
    virtual void Add(const FiledSlot& slot) = 0;
};

}
