#pragma once

#include "platform/controls/Control.h"

#include <string>

namespace tempodial {

/// A text on a form.
class Label : public Control
{
public:
    virtual std::string Caption() const = 0;
    virtual void SetCaption(const std::string& caption) = 0;
};

}
