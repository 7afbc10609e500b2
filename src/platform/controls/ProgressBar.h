#pragma once

#include "platform/controls/Control.h"

#include <cstdint>

namespace tempodial {

/// A bar that shows how far a job is.
class ProgressBar : public Control
{
public:
    virtual std::int32_t Min() const = 0;
    /// Sets the lower bound and moves the value up to it; one above `Max` fails (380).
    virtual void SetMin(std::int32_t min) = 0;
    virtual std::int32_t Max() const = 0;
    /// Sets the upper bound and moves the value down to it; one below `Min` fails (380).
    virtual void SetMax(std::int32_t max) = 0;
    virtual std::int32_t Value() const = 0;
    /// Sets the value; one below `Min` or above `Max` fails (380).
    virtual void SetValue(std::int32_t value) = 0;
};

}
