#include "driver/FormCommands.h"

#include "driver/FormJson.h"
#include "driver/RequestError.h"

#include <nlohmann/json.hpp>

#include <string>

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
        mHost.Hand().Type(FormOf(request), request.Text("control"), request.Text("text"));
        return Json::object();
    };
    table["form.choose"] = [this](const Request& request) {
        mHost.Hand().Choose(FormOf(request), request.Text("control"), EntryOf(request));
        return Json::object();
    };
    table["form.check"] = [this](const Request& request) {
        mHost.Hand().Check(FormOf(request), request.Text("control"), request.Flag("checked"));
        return Json::object();
    };
    table["form.click"] = [this](const Request& request) {
        const auto form = FormOf(request);
        mHost.Hand().Click(form, request.Text("control"));
        return Json::object();
    };
    table["form.close"] = [this](const Request& request) -> Json {
        return { { "cancelled", !mHost.Hand().Close(FormOf(request)) } };
    };
}

Json FormCommands::Forms()
{
    auto list = Json::array();
    for (const auto& form : mHost.Hand().Forms()) {
        list.push_back(FormJson(form));
    }
    return { { "forms", list } };
}

}
