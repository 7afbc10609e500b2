#include "wire/forms/FormWire.h"

#include <utility>

namespace tempodial {

namespace {

WireValue ControlToWire(const ControlSnapshot& control)
{
    std::vector<WireValue> list;
    for (const auto& entry : control.list) {
        list.push_back(WireValue::Text(entry));
    }
    return WireValue::List({ WireValue::Text(control.name), WireValue::Number(static_cast<std::int64_t>(control.kind)),
        WireValue::Text(control.text), WireValue::List(std::move(list)), WireValue::Number(control.index),
        WireValue::Flag(control.checked), WireValue::Flag(control.enabled), WireValue::Flag(control.visible),
        WireValue::Text(control.tip), WireValue::Number(control.min), WireValue::Number(control.max),
        WireValue::Number(control.value) });
}

std::int32_t NumberIn(const WireValue& value)
{
    return static_cast<std::int32_t>(value.number);
}

ControlSnapshot ControlFromWire(const WireValue& value)
{
    const auto& fields = value.list;
    ControlSnapshot control { .name = fields.at(0).text,
        .kind = static_cast<ControlKind>(fields.at(1).number),
        .text = fields.at(2).text,
        .index = NumberIn(fields.at(4)),
        .checked = fields.at(5).number != 0,
        .enabled = fields.at(6).number != 0,
        .visible = fields.at(7).number != 0,
        .tip = fields.at(8).text,
        .min = NumberIn(fields.at(9)),
        .max = NumberIn(fields.at(10)),
        .value = NumberIn(fields.at(11)) };
    for (const auto& entry : fields.at(3).list) {
        control.list.push_back(entry.text);
    }
    return control;
}

}

WireValue ToWire(const std::vector<FormSnapshot>& forms)
{
    std::vector<WireValue> list;
    for (const auto& form : forms) {
        std::vector<WireValue> controls;
        for (const auto& control : form.controls) {
            controls.push_back(ControlToWire(control));
        }
        list.push_back(WireValue::List({ WireValue::Number(form.number), WireValue::Text(form.className),
            WireValue::Text(form.title), WireValue::Flag(form.visible), WireValue::List(std::move(controls)) }));
    }
    return WireValue::List(std::move(list));
}

std::vector<FormSnapshot> FormsFromWire(const WireValue& value)
{
    std::vector<FormSnapshot> forms;
    for (const auto& [kind, number, real, text, fields] : value.list) {
        forms.push_back({ .number = NumberIn(fields.at(0)),
            .className = fields.at(1).text,
            .title = fields.at(2).text,
            .visible = fields.at(3).number != 0 });
        for (const auto& control : fields.at(4).list) {
            forms.back().controls.push_back(ControlFromWire(control));
        }
    }
    return forms;
}

WireValue ToWire(const FormKey& key)
{
    const auto* name = std::get_if<std::string>(&key);
    return name == nullptr ? WireValue::Number(std::get<std::int32_t>(key)) : WireValue::Text(*name);
}

FormKey KeyFromWire(const WireValue& value)
{
    return value.kind == WireKind::Text ? FormKey(value.text) : FormKey(NumberIn(value));
}

}
