#pragma once

#include "base/Subscription.h"
#include "platform/controls/Control.h"

#include <functional>
#include <string>

namespace tempodial {

/// What happens to a check box.
struct CheckBoxEvents
{
    /// The tick changed, by the user or from code.
    std::function<void()> Click;
};

/// A box to tick.
class CheckBox : public Control
{
public:
    using Events = CheckBoxEvents;

    virtual std::string Caption() const = 0;
    virtual void SetCaption(const std::string& caption) = 0;
    /// True when it is ticked.
    virtual bool Value() const = 0;
    virtual void SetValue(bool value) = 0;

    virtual Subscription Subscribe(CheckBoxEvents events) = 0;
};

}
