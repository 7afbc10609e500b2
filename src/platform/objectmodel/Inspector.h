#pragma once

#include "platform/objectmodel/OutlookItem.h"

#include <cstdint>

namespace tempodial {

/// A window that shows an item. Every member fails (462) when the window is gone.
class Inspector
{
public:
    virtual ~Inspector() = default;

    /// The item shown.
    virtual Ref<OutlookItem> CurrentItem() = 0;
};

/// The inspectors that are open.
class Inspectors
{
public:
    virtual ~Inspectors() = default;

    virtual std::int32_t Count() = 0;
    /// The inspector at a position from 1; out of range fails (9).
    virtual Ref<Inspector> Item(std::int32_t index) = 0;
};

}
