#pragma once

#include "addin/base/Windows.h"
#include "forms/FormHands.h"

#include <string>
#include <vector>

namespace tempodial {

/// A person at the add-in's forms on the screen, by messages alone, as a keyboard and a pointer send them. What the
/// windows don't let a person do fails with `FormRefusal`.
class WindowHands final : public FormHands
{
public:
    /// The forms that can be seen.
    std::vector<FormSnapshot> Forms() override;
    void Type(const FormKey& form, const std::string& control, const std::string& text) override;
    void Choose(const FormKey& form, const std::string& control, const EntryKey& entry) override;
    void Check(const FormKey& form, const std::string& control, bool checked) override;
    void Click(const FormKey& form, const std::string& control) override;
    bool Close(const FormKey& form) override;

    /// Handles what waits for this thread, so that all that was to be drawn is.
    static void HandleMessages();
};

}
