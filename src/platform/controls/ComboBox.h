#pragma once

#include "base/Subscription.h"
#include "platform/controls/Control.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tempodial {

/// What happens to a combo box.
struct ComboBoxEvents
{
    /// The text changed, by the user's typing or from code.
    std::function<void()> Change;
    /// An entry was chosen from the list, by the user or from code.
    std::function<void()> Click;
};

/// A text box with a list.
class ComboBox : public Control
{
public:
    using Events = ComboBoxEvents;

    /// Appends an entry to the list.
    virtual void AddItem(const std::string& text) = 0;
    /// Takes all entries off the list, and the text away.
    virtual void Clear() = 0;
    virtual std::string Text() const = 0;
    /// Sets the text, which clears the selection.
    virtual void SetText(const std::string& text) = 0;
    /// The position of the entry selected from 0, -1 for none.
    virtual std::int32_t ListIndex() const = 0;
    /// Selects the entry at a position from 0, or none with -1; out of range fails (380).
    virtual void SetListIndex(std::int32_t index) = 0;

    virtual Subscription Subscribe(ComboBoxEvents events) = 0;
};

}
