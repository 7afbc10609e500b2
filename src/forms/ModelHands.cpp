#include "forms/ModelHands.h"

#include "forms/CheckBoxModel.h"
#include "forms/FormRefusal.h"
#include "forms/OptionButtonModel.h"
#include "forms/TextBoxModel.h"

namespace tempodial {

namespace {

[[noreturn]] void RefuseKind(const std::string& control, const char* wanted)
{
    throw FormRefusal("the control \"" + control + "\" is no " + wanted);
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
    const auto field = Field(form, control);
    if (const auto box = field.As<TextBoxModel>()) {
        box->Type(text);
    } else {
        field.As<ComboBoxModel>()->Type(text);
    }
}

void ModelHands::Choose(const FormKey& form, const std::string& control, const EntryKey& entry)
{
    const auto box = Choice(form, control);
    box->Choose(PositionOf(box->List(), control, entry));
}

void ModelHands::Check(const FormKey& form, const std::string& control, bool checked)
{
    const auto mark = Mark(form, control, checked);
    if (const auto box = mark.As<CheckBoxModel>()) {
        box->Check(checked);
    } else {
        mark.As<OptionButtonModel>()->Choose();
    }
}

void ModelHands::Click(const FormKey& form, const std::string& control)
{
    Button(form, control)->Click();
}

bool ModelHands::Close(const FormKey& form)
{
    return VisibleForm(form)->CloseByFrame();
}

Ref<Control> ModelHands::Field(const FormKey& form, const std::string& control) const
{
    auto found = WorkableControl(form, control);
    if (!found.As<TextBoxModel>() && !found.As<ComboBoxModel>()) {
        RefuseKind(control, "text box and no combo box");
    }
    return found;
}

Ref<ComboBoxModel> ModelHands::Choice(const FormKey& form, const std::string& control) const
{
    auto found = WorkableControl(form, control).As<ComboBoxModel>();
    if (!found) {
        RefuseKind(control, "combo box");
    }
    return found;
}

Ref<Control> ModelHands::Mark(const FormKey& form, const std::string& control, bool checked) const
{
    auto found = WorkableControl(form, control);
    if (found.As<OptionButtonModel>()) {
        if (!checked) {
            throw FormRefusal("an option button is given up by choosing another one");
        }
    } else if (!found.As<CheckBoxModel>()) {
        RefuseKind(control, "check box and no option button");
    }
    return found;
}

Ref<ButtonModel> ModelHands::Button(const FormKey& form, const std::string& control) const
{
    auto found = WorkableControl(form, control).As<ButtonModel>();
    if (!found) {
        RefuseKind(control, "button");
    }
    return found;
}

Ref<FormModel> ModelHands::VisibleForm(const FormKey& key) const
{
    auto form = Form(key);
    if (!form->Visible()) {
        throw FormRefusal("the form is hidden");
    }
    return form;
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
