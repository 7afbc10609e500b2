#pragma once

#include "platform/commandbars/CommandBarControl.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// A command that the host has of its own, by Office's numbers.
struct BuiltInCommand
{
    static constexpr std::int32_t SaveAndClose = 1975;
    static constexpr std::int32_t Print = 2521;
    static constexpr std::int32_t Delete = 478;
    static constexpr std::int32_t PreviousItem = 359;
    static constexpr std::int32_t NextItem = 360;
    static constexpr std::int32_t Find = 141;
    static constexpr std::int32_t Help = 984;
    static constexpr std::int32_t FileMenu = 30002;
    static constexpr std::int32_t EditMenu = 30003;
    static constexpr std::int32_t ViewMenu = 30004;
    static constexpr std::int32_t GoMenu = 30026;
    static constexpr std::int32_t ToolsMenu = 30007;
    static constexpr std::int32_t ActionsMenu = 30131;
    static constexpr std::int32_t HelpMenu = 30010;

    std::int32_t id;
    CommandBarControlType type;
    std::string caption;
    /// The numbers of a menu's entries.
    std::vector<std::int32_t> entries;

    /// The command of a number; null for an unknown one.
    static const BuiltInCommand* Of(std::int32_t id);
};

}
