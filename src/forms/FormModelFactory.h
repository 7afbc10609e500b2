#pragma once

#include "base/Ref.h"
#include "forms/FormModel.h"
#include "platform/controls/Form.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace tempodial {

/// Makes forms as plain models, and finds those that are alive for whoever shows them.
class FormModelFactory final : public FormFactory
{
public:
    /// A new form, not yet shown; its number counts from 1, and no other form gets it.
    Ref<Form> Create(const FormDefinition& definition) override;

    /// The forms alive, in the order in which they were made.
    std::vector<Ref<FormModel>> Forms() const;
    /// The newest form of that class that can be seen, nothing when there is none.
    Ref<FormModel> NewestVisible(std::string_view className) const;
    /// The host ends: takes every form that can be seen off the screen for good, so that none holds its owner any more.
    void CloseAll() const;

private:
    std::vector<std::weak_ptr<FormModel>> mForms;
    std::int32_t mLastNumber = 0;
};

}
