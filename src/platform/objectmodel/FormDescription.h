#pragma once

#include "platform/objectmodel/OutlookItem.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// Where a form is published.
enum class FormRegistry : std::int32_t { Personal = 2 };

/// The description of a form, as an item made from a template carries it.
class FormDescription
{
public:
    virtual ~FormDescription() = default;

    virtual ObjectClass Class() const = 0;
    virtual void SetDisplayName(const std::string& name) = 0;
    /// The message class that the form gives to its items.
    virtual std::string MessageClass() const = 0;
    /// Makes the form known under its message class, replacing an earlier one.
    virtual void PublishForm(FormRegistry registry) = 0;
};

}
