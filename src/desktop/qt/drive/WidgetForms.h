#pragma once

#include "forms/FormHands.h"
#include "forms/ModelHands.h"

#include <functional>
#include <string>
#include <vector>

namespace tempodial {

class Desk;
class FormWindow;
class HostWindows;

/// A person at the windows of forms. What the models wouldn't let a person do is refused as they do; what has no window
/// of its own, as how far a job is, or no key, is done at them.
class WidgetForms final : public FormHands
{
public:
    /// The windows that are open now, null for none.
    using Windows = std::function<const HostWindows*()>;

    /// What is given must outlive it.
    WidgetForms(Desk& desk, Windows windows);

    std::vector<FormSnapshot> Forms() override;
    void Type(const FormKey& form, const std::string& control, const std::string& text) override;
    void Choose(const FormKey& form, const std::string& control, const EntryKey& entry) override;
    void Check(const FormKey& form, const std::string& control, bool checked) override;
    void Click(const FormKey& form, const std::string& control) override;
    bool Close(const FormKey& form) override;

private:
    /// The window of a form that can be seen, null for one that has none of its own.
    FormWindow* WindowOf(const FormKey& form) const;

    Desk& mDesk;
    Windows mWindows;
    ModelHands mModels;
};

}
