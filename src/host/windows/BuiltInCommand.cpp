#include "host/windows/BuiltInCommand.h"

#include <algorithm>

namespace tempodial {

const BuiltInCommand* BuiltInCommand::Of(std::int32_t id)
{
    using Type = CommandBarControlType;
    static const std::vector<BuiltInCommand> known {
        { SaveAndClose, Type::Button, "&Save and Close", {} },
        { Print, Type::Button, "&Print", {} },
        { Delete, Type::Button, "&Delete", {} },
        { PreviousItem, Type::SplitButtonPopup, "Pre&vious Item", {} },
        { NextItem, Type::SplitButtonPopup, "&Next Item", {} },
        { Find, Type::Button, "F&ind", {} },
        { Help, Type::Button, "&Help", {} },
        { FileMenu, Type::Popup, "&File", { Print } },
        { EditMenu, Type::Popup, "&Edit", { Delete, Find } },
        { ViewMenu, Type::Popup, "&View", {} },
        { GoMenu, Type::Popup, "&Go", {} },
        { ToolsMenu, Type::Popup, "&Tools", {} },
        { ActionsMenu, Type::Popup, "&Actions", {} },
        { HelpMenu, Type::Popup, "&Help", { Help } },
    };
    const auto found = std::find_if(known.begin(), known.end(), [&](const auto& command) { return command.id == id; });
    return found == known.end() ? nullptr : &*found;
}

}
