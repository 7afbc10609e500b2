#include "desktop/RuleForm.h"

#include "base/Failure.h"
#include "base/Number.h"
#include "forms/ComboBoxModel.h"
#include "platform/controls/Button.h"
#include "platform/controls/CheckBox.h"
#include "platform/controls/TextBox.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr auto ProjectBox = "ProjectComboBox";
constexpr auto SubjectBox = "SubjectText";
constexpr auto NotSubjectBox = "NotSubjectText";
constexpr auto PrecedenceBox = "PrecedenceCombo";
constexpr auto DaysBox = "DaysText";
constexpr auto ApplyCheck = "ApplyPastCheck";
constexpr auto ApplyButton = "SaveButton";

/// The number of days that a text says to the product, 0 when it says none.
std::int32_t DaysOf(const std::string& text)
{
    if (text.find_first_of(".,") != std::string::npos) {
        return 0;
    }
    try {
        return std::max(ToInt32(text), 0);
    } catch (const Failure&) {
        return 0;
    }
}

/// The list has the highest precedence first.
std::string PrecedenceOf(const ComboBoxModel& box)
{
    const auto list = box.List();
    const auto found = std::find(list.begin(), list.end(), box.Text());
    return found == list.end() ? std::string() : std::to_string(found - list.begin() + 1);
}

}

RuleForm::RuleForm(const Ref<FormModel>& form)
    : mForm(form.Shared())
{
    const auto touch = [isTouched = mIsTouched] { *isTouched = true; };
    mEvents.push_back(form->Control(SubjectBox).As<TextBox>()->Subscribe({ .Change = touch }));
    mEvents.push_back(form->Control(NotSubjectBox).As<TextBox>()->Subscribe({ .Change = touch }));
    mEvents.push_back(form->Control(ProjectBox).As<ComboBox>()->Subscribe({ .Change = touch, .Click = {} }));
    mEvents.push_back(form->Control(PrecedenceBox).As<ComboBox>()->Subscribe({ .Change = {}, .Click = touch }));
}

RuleEdit RuleForm::Edit()
{
    const auto form = mForm.lock();
    if (!form) {
        return {};
    }
    if (!form->Control(ApplyButton).As<Button>()->Enabled()) {
        // The form has just been filled, which raises the events that typing does.
        *mIsTouched = false;
    }
    return { .project = form->Control(ProjectBox).As<ComboBox>()->Text(),
        .subjectRule = form->Control(SubjectBox).As<TextBox>()->Text(),
        .notSubjectRule = form->Control(NotSubjectBox).As<TextBox>()->Text(),
        .precedence = PrecedenceOf(*form->Control(PrecedenceBox).As<ComboBoxModel>()),
        .days = DaysOf(form->Control(DaysBox).As<TextBox>()->Text()),
        .isAppliedBack = form->Control(ApplyCheck).As<CheckBox>()->Value(),
        .isChanged = *mIsTouched };
}

}
