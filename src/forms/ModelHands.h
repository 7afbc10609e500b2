#pragma once

#include "base/Ref.h"
#include "forms/ButtonModel.h"
#include "forms/ComboBoxModel.h"
#include "forms/FormHands.h"
#include "forms/FormModelFactory.h"
#include "platform/controls/Control.h"

#include <string>
#include <vector>

namespace tempodial {

/// A person at forms that are plain models.
class ModelHands final : public FormHands
{
public:
    /// Takes what makes the forms, which must outlive it.
    explicit ModelHands(const FormModelFactory& forms)
        : mForms(forms)
    {
    }

    std::vector<FormSnapshot> Forms() override;
    void Type(const FormKey& form, const std::string& control, const std::string& text) override;
    void Choose(const FormKey& form, const std::string& control, const EntryKey& entry) override;
    void Check(const FormKey& form, const std::string& control, bool checked) override;
    void Click(const FormKey& form, const std::string& control) override;
    bool Close(const FormKey& form) override;

    // What a person can work now; all else fails with `FormRefusal`.
    Ref<FormModel> Form(const FormKey& key) const;
    /// The form that a person can close.
    Ref<FormModel> VisibleForm(const FormKey& key) const;
    /// The text box or combo box of that name.
    Ref<Control> Field(const FormKey& form, const std::string& control) const;
    Ref<ComboBoxModel> Choice(const FormKey& form, const std::string& control) const;
    /// The check box, or the option button that is to be chosen.
    Ref<Control> Mark(const FormKey& form, const std::string& control, bool checked) const;
    Ref<ButtonModel> Button(const FormKey& form, const std::string& control) const;

private:
    /// The control that can be worked now; one that isn't there, or can't be worked, fails.
    Ref<Control> WorkableControl(const FormKey& key, const std::string& name) const;

    const FormModelFactory& mForms;
};

}
