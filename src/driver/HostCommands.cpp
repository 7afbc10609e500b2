#include "driver/HostCommands.h"

#include "driver/RequestError.h"
#include "host/system/HostClock.h"
#include "session/ProductFacts.h"
#include "session/TraceTail.h"
#include "terminal/Arguments.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace tempodial {

namespace {

/// More windows than anybody opens, and still few enough for the memory.
constexpr std::int32_t MostExplorers = 1000;

}

void HostCommands::AddTo(CommandTable& table)
{
    table["start"] = [this](const Request& request) { return Start(request); };
    table["logon"] = [this](const Request&) { return Logon(); };
    table["stop"] = [this](const Request&) { return Stop(); };
    table["quit"] = [this](const Request&) { return Quit(); };
    table["clock"] = [this](const Request& request) { return Clock(request); };
    table["answers"] = [this](const Request& request) { return Answers(request); };
    table["fail"] = [this](const Request& request) { return Fail(request); };
    table["trace"] = [this](const Request& request) { return Trace(request); };
    table["shell"] = [this](const Request&) { return Shell(); };
    table["registry"] = [this](const Request& request) { return Registry(request); };
}

Json HostCommands::Start(const Request& request)
{
    mHost.Start({ .explorers = request.NumberUpTo(MostExplorers, "explorers", 1),
        .folder = mHost.Folder(request.Text("folder", "Inbox")),
        .version = request.Text("version", HostApplication::DefaultVersion),
        .logon = request.Flag("logon", true),
        .imports = request.Flag("remember", false) ? Imports::ByLines : Imports::ByHistory });
    return Json::object();
}

Json HostCommands::Logon()
{
    mHost.Windows().RaiseMapiLogonComplete();
    return Json::object();
}

Json HostCommands::Stop()
{
    mHost.Stop();
    return Json::object();
}

Json HostCommands::Quit()
{
    mHost.Windows().RaiseQuit();
    return Json::object();
}

Json HostCommands::Clock(const Request& request)
{
    if (request.Has("now") == request.Has("advance")) {
        throw RequestError(R"(give either the field "now" or the field "advance")");
    }
    const auto clock = mHost.Profile().Surroundings().clock.As<HostClock>();
    clock->Set(request.Has("now") ? request.Moment("now") : clock->Now().AddSeconds(request.Number("advance")));
    return Json::object();
}

Json HostCommands::Answers(const Request& request)
{
    mHost.MessageBox().Prepare(request.Texts("answers"));
    return Json::object();
}

Json HostCommands::Fail(const Request& request)
{
    const auto call = request.Text("call");
    if (call.find('.') == std::string::npos) {
        throw RequestError("the call \"" + call + "\" names no member: give one such as AppointmentItem.Save");
    }
    const auto number = request.Number("number", static_cast<std::int32_t>(Error::Automation));
    mHost.Add({ .call = call,
        .skip = request.NumberFrom(0, "skip", 0),
        .times = request.NumberFrom(0, "times", 1),
        .failure = Failure(number, request.Text("text", std::string(ErrorText(number)))) });
    return Json::object();
}

Json HostCommands::Trace(const Request& request)
{
    const auto since = static_cast<std::size_t>(request.NumberFrom(0, "since", 0));
    TraceTail trace(std::numeric_limits<std::size_t>::max());
    trace.Read(mHost.Profile());
    auto lines = trace.Lines();
    lines.erase(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(std::min(since, lines.size())));
    return { { "lines", lines } };
}

Json HostCommands::Shell()
{
    return { { "opened", mHost.Opened() } };
}

Json HostCommands::Registry(const Request& request)
{
    const auto action = request.Text("action");
    const auto hive = ToHive(request.Text("hive"));
    const auto given = request.Text("key", "");
    const auto key = given.empty() ? ProductKey : given;
    const auto value = request.Text("value");
    auto answer = Json::object();
    if (action == "get") {
        const auto found = mHost.RegistryValue(hive, key, value);
        if (const auto* number = found.If<std::int32_t>()) {
            answer["number"] = *number;
        } else if (!found.IsEmpty()) {
            answer["text"] = found.ToText();
        }
    } else if (action == "delete") {
        mHost.SetRegistryValue(hive, key, value, {});
    } else if (action != "set") {
        throw RequestError("registry can't \"" + action + "\": give get, set or delete");
    } else if (request.Has("text") == request.Has("number")) {
        throw RequestError(R"(give either the field "text" or the field "number" to set)");
    } else if (request.Has("text")) {
        mHost.SetRegistryValue(hive, key, value, request.Text("text"));
    } else {
        mHost.SetRegistryValue(hive, key, value, request.Number("number"));
    }
    return answer;
}

}
