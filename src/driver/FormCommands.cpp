#include "driver/FormCommands.h"

#include "driver/FormJson.h"
#include "driver/RequestError.h"
#include "session/FormClick.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <variant>

namespace tempodial {

namespace {

FormKey FormOf(const Request& request)
{
    return request.Any("form").is_string() ? FormKey(request.Text("form")) : FormKey(request.Number("form"));
}

EntryKey EntryOf(const Request& request)
{
    if (request.Has("index") == request.Has("text")) {
        throw RequestError(R"(give either the field "index" or the field "text")");
    }
    return request.Has("index") ? EntryKey(request.Number("index")) : EntryKey(request.Text("text"));
}

}

void FormCommands::AddTo(CommandTable& table)
{
    table["forms"] = [this](const Request&) { return Forms(); };
    table["form.type"] = [this](const Request& request) {
        mHost.Forms().Type(FormOf(request), request.Text("control"), request.Text("text"));
        return Json::object();
    };
    table["form.choose"] = [this](const Request& request) {
        mHost.Forms().Choose(FormOf(request), request.Text("control"), EntryOf(request));
        return Json::object();
    };
    table["form.check"] = [this](const Request& request) {
        mHost.Forms().Check(FormOf(request), request.Text("control"), request.Flag("checked"));
        return Json::object();
    };
    table["form.click"] = [this](const Request& request) {
        Click(FormOf(request), request.Text("control"));
        return Json::object();
    };
    table["form.close"] = [this](const Request& request) -> Json {
        return { { "cancelled", !mHost.Forms().Close(FormOf(request)) } };
    };
}

void FormCommands::Click(const FormKey& form, const std::string& control)
{
    const auto click = [&] { mHost.Forms().Click(form, control); };
    const auto forms = mHost.Forms().Forms();
    // The newest of a class comes last.
    const auto found = std::find_if(forms.rbegin(), forms.rend(), [&](const FormSnapshot& known) {
        const auto* name = std::get_if<std::string>(&form);
        return name == nullptr ? known.number == std::get<std::int32_t>(form)
                               : known.visible && known.className == *name;
    });
    if (found == forms.rend() || mHost.HasFormWindows()) {
        click();
    } else {
        ClickAsStep(mHost.Profile(), found->className, found->title, click);
    }
}

Json FormCommands::Forms()
{
    auto list = Json::array();
    for (const auto& form : mHost.Forms().Forms()) {
        list.push_back(FormJson(form));
    }
    return { { "forms", list } };
}

}
