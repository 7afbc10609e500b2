#pragma once

#include "forms/FormSnapshot.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace tempodial {

/// A form by its number, or the newest one of a class that can be seen.
using FormKey = std::variant<std::int32_t, std::string>;
/// An entry of a list by its position from 0, or by its text.
using EntryKey = std::variant<std::int32_t, std::string>;

/// The position of an entry in the list of a control; one that isn't there fails with `FormRefusal`.
std::int32_t PositionOf(const std::vector<std::string>& list, const std::string& control, const EntryKey& entry);

/// A person at the add-in's forms, wherever the add-in runs. What a person can't do fails with `FormRefusal`.
class FormHands
{
public:
    virtual ~FormHands() = default;

    /// The forms that could be seen or are kept hidden.
    virtual std::vector<FormSnapshot> Forms() = 0;
    /// Types a text into a text box or an editable combo box.
    virtual void Type(const FormKey& form, const std::string& control, const std::string& text) = 0;
    /// Picks an entry of a combo box.
    virtual void Choose(const FormKey& form, const std::string& control, const EntryKey& entry) = 0;
    /// Ticks a check box or takes the tick away, or chooses an option button.
    virtual void Check(const FormKey& form, const std::string& control, bool checked) = 0;
    virtual void Click(const FormKey& form, const std::string& control) = 0;
    /// Closes a form by its frame; false when it stays.
    virtual bool Close(const FormKey& form) = 0;
};

}
