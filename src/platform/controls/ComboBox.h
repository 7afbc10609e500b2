#pragma once

#include "platform/controls/Control.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// A text box with a list.
class ComboBox : public Control
{
public:
    /// Appends an entry to the list.
    virtual void AddItem(const std::string& text) = 0;
    virtual std::string Text() const = 0;
    /// Sets the text, which clears the selection.
    virtual void SetText(const std::string& text) = 0;
    /// The position of the entry selected from 0, -1 for none.
    virtual std::int32_t ListIndex() const = 0;
};

}
