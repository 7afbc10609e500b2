#pragma once

#include "base/Ref.h"
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

private:
    Ref<FormModel> Form(const FormKey& key) const;
    /// The control that can be worked now; one that isn't there, or can't be worked, fails.
    Ref<Control> WorkableControl(const FormKey& key, const std::string& name) const;

    const FormModelFactory& mForms;
};

}
