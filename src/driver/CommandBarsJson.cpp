#include "driver/CommandBarsJson.h"

#include "driver/RequestError.h"
#include "host/windows/HostCommandBarButton.h"
#include "host/windows/HostCommandBarPopup.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>

namespace tempodial {

namespace {

Json ControlsJson(const HostCommandBar& bar)
{
    auto controls = Json::array();
    for (const auto& control : bar.Entries()) {
        const auto& now = control->Now();
        const auto button = control.As<HostCommandBarButton>();
        const auto popup = control.As<HostCommandBarPopup>();
        controls.push_back({ { "caption", now.caption }, { "tag", now.tag }, { "id", now.id },
            { "type", static_cast<std::int32_t>(now.type) }, { "enabled", now.enabled }, { "visible", now.visible },
            { "beginGroup", now.beginGroup },
            { "style", static_cast<std::int32_t>(button ? button->Style() : ButtonStyle::Automatic) },
            { "picture", button && button->ShownPicture() },
            { "controls", popup ? ControlsJson(*popup->Menu()) : Json::array() } });
    }
    return controls;
}

/// The control of a caption: the first that can be seen, else the first.
Ref<HostCommandBarControl> Find(const HostCommandBar& bar, const std::string& caption)
{
    Ref<HostCommandBarControl> found;
    for (const auto& control : bar.Entries()) {
        if (control->Now().caption == caption && (!found || (!found->Now().visible && control->Now().visible))) {
            found = control;
        }
    }
    if (!found) {
        throw RequestError("there is no command \"" + caption + "\"");
    }
    return found;
}

}

Json CommandBarsJson(const HostCommandBars& bars)
{
    auto list = Json::array();
    for (const auto& bar : bars.All()) {
        list.push_back({ { "name", bar->Name() }, { "visible", bar->Visible() },
            { "position", static_cast<std::int32_t>(bar->Position()) }, { "controls", ControlsJson(*bar) } });
    }
    return list;
}

Ref<HostCommandBarControl> FindCommand(
    const HostCommandBars& bars, const std::string& bar, const std::vector<std::string>& path)
{
    const auto& all = bars.All();
    const auto first = std::find_if(all.begin(), all.end(), [&](const auto& known) { return known->Name() == bar; });
    if (first == all.end()) {
        throw RequestError("there is no bar \"" + bar + "\"");
    }
    if (path.empty()) {
        throw RequestError(R"(the field "path" names no command)");
    }
    auto control = Find(**first, path.front());
    for (auto caption = path.begin() + 1; caption != path.end(); ++caption) {
        const auto popup = control.As<HostCommandBarPopup>();
        if (!popup) {
            throw RequestError("\"" + control->Now().caption + "\" is no menu");
        }
        control->CheckUsable();
        control = Find(*popup->Menu(), *caption);
    }
    return control;
}

}
