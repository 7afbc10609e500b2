#pragma once

#include "base/Subscription.h"
#include "platform/controls/Control.h"

#include <functional>
#include <string>

namespace tempodial {

/// What happens to an option button.
struct OptionButtonEvents
{
    /// It became the one chosen, by the user or from code.
    std::function<void()> Click;
};

/// One of the option buttons of a form, of which one at most is chosen.
class OptionButton : public Control
{
public:
    using Events = OptionButtonEvents;

    virtual std::string Caption() const = 0;
    virtual void SetCaption(const std::string& caption) = 0;
    /// True when it is the one chosen.
    virtual bool Value() const = 0;
    /// Chooses it, which gives up the others, or gives it up.
    virtual void SetValue(bool value) = 0;

    virtual Subscription Subscribe(OptionButtonEvents events) = 0;
};

}
