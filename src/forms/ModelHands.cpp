#include "forms/ModelHands.h"

#include "forms/ButtonModel.h"
#include "forms/CheckBoxModel.h"
#include "forms/ComboBoxModel.h"
#include "forms/FormRefusal.h"
#include "forms/OptionButtonModel.h"
#include "forms/TextBoxModel.h"

#include <algorithm>

namespace tempodial {

namespace {

[[noreturn]] void RefuseKind(const std::string& control, const char* wanted)
{
    throw FormRefusal("the control \"" + control + "\" is no " + wanted);
}

/// The position of an entry; a list that hasn't it fails.
std::int32_t PositionOf(const ComboBoxModel& combo, const std::string& control, const EntryKey& entry)
{
    const auto& list = combo.List();
    const auto count = static_cast<std::int32_t>(list.size());
    const auto* text = std::get_if<std::string>(&entry);
    const auto position = text == nullptr
        ? std::get<std::int32_t>(entry)
        : static_cast<std::int32_t>(std::find(list.begin(), list.end(), *text) - list.begin());
    if (position < 0 || position >= count) {
        throw FormRefusal("the list of \"" + control + "\" has no such entry");
    }
    return position;
}

}

std::vector<FormSnapshot> ModelHands::Forms()
{
    std::vector<FormSnapshot> snapshots;
    for (const auto& form : mForms.Forms()) {
        snapshots.push_back(SnapshotOf(*form));
    }
    return snapshots;
}

void ModelHands::Type(const FormKey& form, const std::string& control, const std::string& text)
{
    const auto found = WorkableControl(form, control);
    if (const auto box = found.As<TextBoxModel>()) {
        box->Type(text);
    } else if (const auto combo = found.As<ComboBoxModel>()) {
        combo->Type(text);
    } else {
        RefuseKind(control, "text box and no combo box");
    }
}

void ModelHands::Choose(const FormKey& form, const std::string& control, const EntryKey& entry)
{
    const auto combo = WorkableControl(form, control).As<ComboBoxModel>();
    if (!combo) {
        RefuseKind(control, "combo box");
    }
    combo->Choose(PositionOf(*combo, control, entry));
}

void ModelHands::Check(const FormKey& form, const std::string& control, bool checked)
{
    const auto found = WorkableControl(form, control);
    if (const auto box = found.As<CheckBoxModel>()) {
        box->Check(checked);
    } else if (const auto option = found.As<OptionButtonModel>()) {
        if (!checked) {
            throw FormRefusal("an option button is given up by choosing another one");
        }
        option->Choose();
    } else {
        RefuseKind(control, "check box and no option button");
    }
}

void ModelHands::Click(const FormKey& form, const std::string& control)
{
    const auto button = WorkableControl(form, control).As<ButtonModel>();
    if (!button) {
        RefuseKind(control, "button");
    }
    button->Click();
}

bool ModelHands::Close(const FormKey& form)
{
    const auto found = Form(form);
    if (!found->Visible()) {
        throw FormRefusal("the form is hidden");
    }
    return found->CloseByFrame();
}

Ref<FormModel> ModelHands::Form(const FormKey& key) const
{
    if (const auto* name = std::get_if<std::string>(&key)) {
        if (auto form = mForms.NewestVisible(*name)) {
            return form;
        }
        throw FormRefusal("there is no visible form of the class \"" + *name + "\"");
    }
    const auto number = std::get<std::int32_t>(key);
    for (const auto& form : mForms.Forms()) {
        if (form->Number() == number) {
            return form;
        }
    }
    throw FormRefusal("there is no form " + std::to_string(number));
}

Ref<Control> ModelHands::WorkableControl(const FormKey& key, const std::string& name) const
{
    const auto form = Form(key);
    for (const auto& row : form->Definition().rows) {
        for (const auto& definition : row) {
            if (definition.name == name) {
                auto control = form->Control(name);
                if (!control.As<ControlState>()->CanBeWorked()) {
                    throw FormRefusal("the control \"" + name + "\" is disabled or hidden");
                }
                return control;
            }
        }
    }
    throw FormRefusal("the form has no control \"" + name + "\"");
}

}
