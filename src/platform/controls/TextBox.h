#pragma once

#include "base/Subscription.h"
#include "platform/controls/Control.h"

#include <functional>
#include <string>

namespace tempodial {

/// What happens to a text box.
struct TextBoxEvents
{
    /// The text changed, by the user or from code.
    std::function<void()> Change;
};

/// A box in which a person types a text.
class TextBox : public Control
{
public:
    using Events = TextBoxEvents;

    virtual std::string Text() const = 0;
    virtual void SetText(const std::string& text) = 0;

    virtual Subscription Subscribe(TextBoxEvents events) = 0;
};

}
