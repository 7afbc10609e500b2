#pragma once

#include "platform/objectmodel/OutlookItem.h"

#include <cstdint>

namespace tempodial {

/// What is selected in an explorer, as it is at the moment of asking.
class Selection
{
public:
    virtual ~Selection() = default;

    virtual std::int32_t Count() = 0;
    /// The item at a position from 1; out of range fails (9).
    virtual Ref<OutlookItem> Item(std::int32_t index) = 0;
};

}
