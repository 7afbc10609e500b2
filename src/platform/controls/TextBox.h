#pragma once

#include "platform/controls/Control.h"

#include <string>

namespace tempodial {

/// A box in which a person types a text.
class TextBox : public Control
{
public:
    virtual std::string Text() const = 0;
    virtual void SetText(const std::string& text) = 0;
};

}
