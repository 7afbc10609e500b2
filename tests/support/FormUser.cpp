#include "support/FormUser.h"

#include "base/Failure.h"
#include "forms/ButtonModel.h"
#include "forms/CheckBoxModel.h"
#include "forms/ComboBoxModel.h"
#include "forms/LabelModel.h"
#include "forms/OptionButtonModel.h"
#include "forms/TextBoxModel.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tempodial {

FormUser::FormUser(Ref<FormModelFactory> forms, std::string className)
    : mForms(std::move(forms))
    , mClassName(std::move(className))
{
}

Ref<FormModel> FormUser::Form() const
{
    auto form = mForms->NewestVisible(mClassName);
    if (!form) {
        for (const auto& known : mForms->Forms()) {
            form = known->Definition().className == mClassName ? known : form;
        }
    }
    return form;
}

void FormUser::Types(const std::string& name, const std::string& text) const
{
    if (const auto box = Get<TextBoxModel>(name)) {
        box->Type(text);
    } else {
        Get<ComboBoxModel>(name)->Type(text);
    }
}

void FormUser::Chooses(const std::string& name, const std::string& text) const
{
    const auto box = Get<ComboBoxModel>(name);
    const auto& list = box->List();
    const auto entry = std::ranges::find(list, text);
    if (entry == list.end()) {
        throw Failure(Error::InvalidCall);
    }
    box->Choose(static_cast<std::int32_t>(entry - list.begin()));
}

void FormUser::Checks(const std::string& name, bool ticked) const
{
    Get<CheckBoxModel>(name)->Check(ticked);
}

void FormUser::Picks(const std::string& name) const
{
    Get<OptionButtonModel>(name)->Choose();
}

void FormUser::Clicks(const std::string& name) const
{
    Get<ButtonModel>(name)->Click();
}

bool FormUser::Closes() const
{
    return Form()->CloseByFrame();
}

bool FormUser::Sees() const
{
    return bool(mForms->NewestVisible(mClassName));
}

bool FormUser::CanWork(const std::string& name) const
{
    return Get<ControlState>(name)->CanBeWorked();
}

std::string FormUser::Text(const std::string& name) const
{
    const auto control = Form()->Control(name);
    if (const auto text = control.As<TextBox>()) {
        return text->Text();
    }
    if (const auto combo = control.As<ComboBox>()) {
        return combo->Text();
    }
    if (const auto label = control.As<Label>()) {
        return label->Caption();
    }
    if (const auto check = control.As<CheckBox>()) {
        return check->Caption();
    }
    if (const auto option = control.As<OptionButton>()) {
        return option->Caption();
    }
    return control.As<Button>()->Caption();
}

std::vector<std::string> FormUser::List(const std::string& name) const
{
    return Get<ComboBoxModel>(name)->List();
}

bool FormUser::IsOn(const std::string& name) const
{
    if (const auto check = Get<CheckBoxModel>(name)) {
        return check->Value();
    }
    return Get<OptionButtonModel>(name)->Value();
}

std::vector<std::string> FormUser::Controls() const
{
    constexpr std::array Kinds { "label", "button", "text", "combo", "check", "option", "progress" };
    constexpr std::array Roles { "", "default ", "cancel " };
    std::vector<std::string> controls;
    for (const auto& row : Form()->Definition().rows) {
        for (const auto& control : row) {
            controls.push_back(control.name + "|" + Roles.at(static_cast<std::size_t>(control.role))
                + Kinds.at(static_cast<std::size_t>(control.kind)) + (control.severalLines ? " of lines|" : "|")
                + control.text + "|" + control.toolTip);
        }
    }
    return controls;
}

}
