#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "desktop/RuleEdit.h"
#include "forms/FormModel.h"

#include <memory>
#include <vector>

namespace tempodial {

/// Reads the form of the project settings while a person works at it.
class RuleForm
{
public:
    /// The class of that form.
    static constexpr auto FormClass = "ProjectSettingsForm";

    /// Doesn't hold the form, which goes with its owner.
    explicit RuleForm(const Ref<FormModel>& form);

    /// What stands in the form now; nothing when the form is gone.
    RuleEdit Edit();

private:
    std::weak_ptr<FormModel> mForm;
    /// Something was typed or chosen that saving would keep.
    std::shared_ptr<bool> mIsTouched = std::make_shared<bool>(false);
    std::vector<Subscription> mEvents;
};

}
