#include "driver/FormJson.h"

#include "forms/ComboBoxModel.h"
#include "platform/controls/Button.h"
#include "platform/controls/CheckBox.h"
#include "platform/controls/Label.h"
#include "platform/controls/OptionButton.h"
#include "platform/controls/ProgressBar.h"
#include "platform/controls/TextBox.h"

#include <nlohmann/json.hpp>

namespace tempodial {

namespace {

const char* Word(ControlKind kind)
{
    switch (kind) {
    case ControlKind::Label:
        return "label";
    case ControlKind::Button:
        return "button";
    case ControlKind::TextBox:
        return "text";
    case ControlKind::ComboBox:
        return "combo";
    case ControlKind::CheckBox:
        return "check";
    case ControlKind::OptionButton:
        return "option";
    case ControlKind::ProgressBar:
        break;
    }
    return "progress";
}

Json ControlJson(const Ref<Control>& control, const ControlDefinition& definition)
{
    Json json { { "kind", Word(definition.kind) } };
    if (const auto label = control.As<Label>()) {
        json["text"] = label->Caption();
    } else if (const auto button = control.As<Button>()) {
        json["text"] = button->Caption();
    } else if (const auto box = control.As<TextBox>()) {
        json["text"] = box->Text();
    } else if (const auto combo = control.As<ComboBoxModel>()) {
        json["text"] = combo->Text();
        json["list"] = combo->List();
        json["index"] = combo->ListIndex();
    } else if (const auto check = control.As<CheckBox>()) {
        json["text"] = check->Caption();
        json["checked"] = check->Value();
    } else if (const auto option = control.As<OptionButton>()) {
        json["text"] = option->Caption();
        json["checked"] = option->Value();
    }
    json["enabled"] = control->Enabled();
    json["visible"] = control->Visible() && definition.onForm;
    json["tip"] = definition.toolTip;
    if (const auto bar = control.As<ProgressBar>()) {
        json["min"] = bar->Min();
        json["max"] = bar->Max();
        json["value"] = bar->Value();
    }
    return json;
}

}

Json FormJson(FormModel& form)
{
    auto controls = Json::object();
    for (const auto& row : form.Definition().rows) {
        for (const auto& definition : row) {
            controls[definition.name] = ControlJson(form.Control(definition.name), definition);
        }
    }
    return { { "form", form.Number() }, { "class", form.Definition().className }, { "title", form.Caption() },
        { "visible", form.Visible() }, { "controls", controls } };
}

}
