#pragma once

#include "base/Subscription.h"
#include "platform/controls/Control.h"

#include <functional>
#include <string>

namespace tempodial {

/// What happens to a button.
struct ButtonEvents
{
    std::function<void()> Click;
};

/// A push button.
class Button : public Control
{
public:
    using Events = ButtonEvents;

    virtual std::string Caption() const = 0;
    virtual void SetCaption(const std::string& caption) = 0;

    virtual Subscription Subscribe(ButtonEvents events) = 0;
};

}
