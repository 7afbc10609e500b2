#include "driver/FormCommands.h"

#include "driver/FormJson.h"
#include "driver/RequestError.h"
#include "forms/ButtonModel.h"
#include "forms/CheckBoxModel.h"
#include "forms/ComboBoxModel.h"
#include "forms/OptionButtonModel.h"
#include "forms/TextBoxModel.h"
#include "session/FormClick.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace tempodial {

namespace {

[[noreturn]] void RefuseKind(const Request& request, const char* wanted)
{
    throw RequestError("the control \"" + request.Text("control") + "\" is no " + wanted);
}

/// The position of the entry that is to be picked; a combo box refuses one that it doesn't have.
std::int32_t EntryOf(const ComboBoxModel& combo, const Request& request)
{
    if (request.Has("index") == request.Has("text")) {
        throw RequestError(R"(give either the field "index" or the field "text")");
    }
    const auto& list = combo.List();
    const auto count = static_cast<std::int32_t>(list.size());
    const auto index = request.Has("index")
        ? request.Number("index")
        : static_cast<std::int32_t>(std::find(list.begin(), list.end(), request.Text("text")) - list.begin());
    if (index < 0 || index >= count) {
        throw RequestError("the list of \"" + request.Text("control") + "\" has no such entry");
    }
    return index;
}

}

void FormCommands::AddTo(CommandTable& table)
{
    table["forms"] = [this](const Request&) { return Forms(); };
    table["form.type"] = [this](const Request& request) { return Type(request); };
    table["form.choose"] = [this](const Request& request) { return Choose(request); };
    table["form.check"] = [this](const Request& request) { return Check(request); };
    table["form.click"] = [this](const Request& request) { return Click(request); };
    table["form.close"] = [this](const Request& request) { return Close(request); };
}

Json FormCommands::Forms()
{
    auto list = Json::array();
    for (const auto& form : mHost.Forms().Forms()) {
        list.push_back(FormJson(*form));
    }
    return { { "forms", list } };
}

Json FormCommands::Type(const Request& request)
{
    const auto control = WorkableControl(request);
    const auto text = request.Text("text");
    if (const auto box = control.As<TextBoxModel>()) {
        box->Type(text);
    } else if (const auto combo = control.As<ComboBoxModel>()) {
        combo->Type(text);
    } else {
        RefuseKind(request, "text box and no combo box");
    }
    return Json::object();
}

Json FormCommands::Choose(const Request& request)
{
    const auto combo = WorkableControl(request).As<ComboBoxModel>();
    if (!combo) {
        RefuseKind(request, "combo box");
    }
    combo->Choose(EntryOf(*combo, request));
    return Json::object();
}

Json FormCommands::Check(const Request& request)
{
    const auto control = WorkableControl(request);
    const auto checked = request.Flag("checked");
    if (const auto box = control.As<CheckBoxModel>()) {
        box->Check(checked);
    } else if (const auto option = control.As<OptionButtonModel>()) {
        if (!checked) {
            throw RequestError("an option button is given up by choosing another one");
        }
        option->Choose();
    } else {
        RefuseKind(request, "check box and no option button");
    }
    return Json::object();
}

Json FormCommands::Click(const Request& request)
{
    const auto button = WorkableControl(request).As<ButtonModel>();
    if (!button) {
        RefuseKind(request, "button");
    }
    ClickButton(mHost.Profile(), *Form(request), *button);
    return Json::object();
}

Json FormCommands::Close(const Request& request)
{
    const auto form = Form(request);
    if (!form->Visible()) {
        throw RequestError("the form is hidden");
    }
    return { { "cancelled", !form->CloseByFrame() } };
}

Ref<FormModel> FormCommands::Form(const Request& request) const
{
    if (request.Any("form").is_string()) {
        const auto name = request.Text("form");
        if (auto form = mHost.Forms().NewestVisible(name)) {
            return form;
        }
        throw RequestError("there is no visible form of the class \"" + name + "\"");
    }
    const auto number = request.Number("form");
    for (const auto& form : mHost.Forms().Forms()) {
        if (form->Number() == number) {
            return form;
        }
    }
    throw RequestError("there is no form " + std::to_string(number));
}

Ref<Control> FormCommands::WorkableControl(const Request& request) const
{
    const auto form = Form(request);
    const auto name = request.Text("control");
    for (const auto& row : form->Definition().rows) {
        for (const auto& definition : row) {
            if (definition.name == name) {
                auto control = form->Control(name);
                if (!control.As<ControlState>()->CanBeWorked()) {
                    throw RequestError("the control \"" + name + "\" is disabled or hidden");
                }
                return control;
            }
        }
    }
    throw RequestError("the form has no control \"" + name + "\"");
}

}
