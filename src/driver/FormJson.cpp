#include "driver/FormJson.h"

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

Json ControlJson(const ControlSnapshot& control)
{
    Json json { { "kind", Word(control.kind) } };
    if (control.kind != ControlKind::ProgressBar) {
        json["text"] = control.text;
    }
    if (control.kind == ControlKind::ComboBox) {
        json["list"] = control.list;
        json["index"] = control.index;
    }
    if (control.kind == ControlKind::CheckBox || control.kind == ControlKind::OptionButton) {
        json["checked"] = control.checked;
    }
    json["enabled"] = control.enabled;
    json["visible"] = control.visible;
    json["tip"] = control.tip;
    if (control.kind == ControlKind::ProgressBar) {
        json["min"] = control.min;
        json["max"] = control.max;
        json["value"] = control.value;
    }
    return json;
}

}

Json FormJson(const FormSnapshot& form)
{
    auto controls = Json::object();
    for (const auto& control : form.controls) {
        controls[control.name] = ControlJson(control);
    }
    return { { "form", form.number }, { "class", form.className }, { "title", form.title }, { "visible", form.visible },
        { "controls", controls } };
}

}
