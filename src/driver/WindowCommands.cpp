#include "driver/WindowCommands.h"

#include "driver/CommandBarsJson.h"
#include "driver/RequestError.h"
#include "terminal/Arguments.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

/// The open window of a number.
template <class Window>
Ref<Window> Find(const std::vector<Ref<Window>>& windows, const std::string& kind, std::int32_t number)
{
    const auto found
        = std::find_if(windows.begin(), windows.end(), [&](const auto& window) { return window->Number() == number; });
    if (found == windows.end()) {
        throw RequestError("there is no " + kind + " " + std::to_string(number));
    }
    return *found;
}

template <class Window> Json Numbers(const std::vector<Ref<Window>>& windows)
{
    auto numbers = Json::array();
    for (const auto& window : windows) {
        numbers.push_back(window->Number());
    }
    return numbers;
}

/// What a member answers, null when it fails: a window stays on the screen when its folder is gone.
template <class Member> Json Seen(Member&& member)
{
    try {
        return member();
    } catch (const Failure&) {
        return nullptr;
    }
}

Json ValueJson(const Variant& value)
{
    if (const auto* moment = value.If<Date>()) {
        return IsoMoment(*moment);
    }
    if (const auto* flag = value.If<bool>()) {
        return *flag;
    }
    return value.ToText();
}

/// What a person enters into a control of a page, read as what the control holds.
Variant ToValue(const HostPageControl& control, const Request& request)
{
    const auto present = control.Value();
    if (present.If<bool>() != nullptr) {
        return request.Flag("value");
    }
    return present.If<Date>() != nullptr ? Variant(request.Moment("value")) : Variant(request.Text("value"));
}

}

void WindowCommands::AddTo(CommandTable& table)
{
    table["explorer.open"] = [this](const Request& request) { return OpenExplorer(request); };
    table["explorer.ready"] = [this](const Request& request) { return MakeBarsReady(request); };
    table["explorer.activate"] = [this](const Request& request) { return ActivateExplorer(request); };
    table["explorer.close"] = [this](const Request& request) { return CloseExplorer(request); };
    table["explorer.die"] = [this](const Request& request) { return KillExplorer(request); };
    table["explorer.folder"] = [this](const Request& request) { return GoTo(request); };
    table["explorer.beside"] = [this](const Request& request) { return ShowBeside(request); };
    table["explorer.select"] = [this](const Request& request) { return Select(request); };
    table["explorer.view"] = [this](const Request& request) { return PickView(request); };
    table["explorer.state"] = [this](const Request& request) { return ExplorerState(request); };
    table["inspector.open"] = [this](const Request& request) { return OpenInspector(request); };
    table["inspector.set"] = [this](const Request& request) { return Edit(request); };
    table["inspector.save"] = [this](const Request& request) { return Save(request); };
    table["inspector.close"] = [this](const Request& request) { return Close(request); };
    table["inspector.state"] = [this](const Request& request) { return InspectorState(request); };
    table["windows"] = [this](const Request&) { return Windows(); };
    table["command"] = [this](const Request& request) { return Click(request); };
}

Json WindowCommands::OpenExplorer(const Request& request)
{
    const auto folder = mHost.Folder(request.Text("folder", "Inbox"));
    return { { "explorer", Hand().OpenExplorer(folder, request.Flag("commandBars", true))->Number() } };
}

Json WindowCommands::MakeBarsReady(const Request& request)
{
    Explorer(request)->MakeBarsReady();
    return Json::object();
}

Json WindowCommands::ActivateExplorer(const Request& request)
{
    Hand().Activate(Explorer(request));
    return Json::object();
}

Json WindowCommands::CloseExplorer(const Request& request)
{
    Hand().Close(Explorer(request));
    return Json::object();
}

Json WindowCommands::KillExplorer(const Request& request)
{
    Application().KillExplorer(Explorer(request));
    return Json::object();
}

Json WindowCommands::GoTo(const Request& request)
{
    const auto folder = mHost.Folder(request.Text("folder"));
    const auto explorer = Explorer(request);
    Hand().GoTo(explorer, folder);
    return Json::object();
}

Json WindowCommands::ShowBeside(const Request& request)
{
    std::vector<Ref<MAPIFolder>> folders;
    for (const auto& path : request.Texts("folders")) {
        folders.push_back(mHost.Folder(path));
    }
    if (folders.empty()) {
        throw RequestError(R"(the field "folders" names no folder)");
    }
    const auto explorer = Explorer(request);
    Hand().ShowBeside(explorer, folders);
    return Json::object();
}

Json WindowCommands::Select(const Request& request)
{
    std::vector<Ref<OutlookItem>> items;
    for (const auto& entryId : request.Texts("items")) {
        items.emplace_back(mHost.Item(entryId));
    }
    const auto explorer = Explorer(request);
    Hand().Select(explorer, items);
    return Json::object();
}

Json WindowCommands::PickView(const Request& request)
{
    const auto explorer = Explorer(request);
    Hand().PickView(explorer, request.Text("name"));
    return Json::object();
}

Json WindowCommands::ExplorerState(const Request& request)
{
    const auto explorer = Explorer(request);
    return { { "folder", Seen([&] { return mHost.Mailbox()->PathOf(explorer->CurrentFolder()); }) },
        { "view", Seen([&] { return explorer->CurrentView(); }) },
        { "caption", Seen([&] { return explorer->Caption(); }) }, { "bars", CommandBarsJson(*explorer->Bars()) } };
}

Json WindowCommands::OpenInspector(const Request& request)
{
    Ref<HostInspector> inspector;
    if (request.Has("entryId")) {
        inspector = Hand().Open(mHost.Item(request.Text("entryId")));
    } else if (request.Text("kind") == "mail") {
        inspector = Hand().Open(Application().CreateItem().As<HostMail>());
    } else {
        throw RequestError("there is no kind of item \"" + request.Text("kind") + "\": give mail, or an entryId");
    }
    return { { "inspector", inspector ? Json(inspector->Number()) : Json() }, { "cancelled", !inspector } };
}

Json WindowCommands::Edit(const Request& request)
{
    const auto inspector = Inspector(request);
    const auto name = request.Text("control");
    if (!inspector->ShownPage()) {
        throw RequestError("the inspector shows no page with controls");
    }
    const auto& controls = inspector->ShownPage()->All();
    const auto control = std::find_if(
        controls.begin(), controls.end(), [&](const auto& known) { return known->Layout().name == name; });
    if (control == controls.end()) {
        throw RequestError("the page has no control \"" + name + "\"");
    }
    Hand().Edit(inspector, name, ToValue(**control, request));
    return Json::object();
}

Json WindowCommands::Save(const Request& request)
{
    const auto inspector = Inspector(request);
    return { { "cancelled", !Hand().Save(inspector) } };
}

Json WindowCommands::Close(const Request& request)
{
    const auto inspector = Inspector(request);
    return { { "cancelled", !Hand().Close(inspector) } };
}

Json WindowCommands::InspectorState(const Request& request)
{
    const auto inspector = Inspector(request);
    auto controls = Json::object();
    if (inspector->ShownPage()) {
        for (const auto& control : inspector->ShownPage()->All()) {
            controls[control->Layout().name] = { { "value", ValueJson(control->Value()) }, { "text", control->Text() },
                { "list", control->List() } };
        }
    }
    return { { "caption", inspector->Caption() }, { "controls", controls },
        { "bars", CommandBarsJson(*inspector->Bars()) } };
}

Json WindowCommands::Windows()
{
    return { { "explorers", Numbers(Application().OpenExplorers()) },
        { "inspectors", Numbers(Application().OpenInspectors()) } };
}

Json WindowCommands::Click(const Request& request)
{
    if (request.Has("explorer") == request.Has("inspector")) {
        throw RequestError(R"(give either the field "explorer" or the field "inspector")");
    }
    const auto pathOf = [&] {
        auto captions = request.Texts("path");
        return CommandPath { request.Text("bar"), std::move(captions) };
    };
    if (request.Has("explorer")) {
        const auto explorer = Explorer(request);
        Hand().ClickCommand(explorer, pathOf());
    } else {
        const auto inspector = Inspector(request);
        Hand().ClickCommand(inspector, pathOf());
    }
    return Json::object();
}

Ref<HostExplorer> WindowCommands::Explorer(const Request& request) const
{
    return Find(Application().OpenExplorers(), "explorer", request.Number("explorer"));
}

Ref<HostInspector> WindowCommands::Inspector(const Request& request) const
{
    return Find(Application().OpenInspectors(), "inspector", request.Number("inspector"));
}

}
