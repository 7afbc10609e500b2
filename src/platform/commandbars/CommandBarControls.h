#pragma once

#include "platform/commandbars/CommandBarControl.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tempodial {

/// What is to be added to a command bar.
struct CommandBarAddition
{
    CommandBarControlType type = CommandBarControlType::Button;
    /// The built-in command to take, nothing for a control of one's own.
    std::optional<std::int32_t> id;
    /// A text of the program's own.
    std::string parameter;
    /// The position from 1 in front of which it is to stand, nothing for the end.
    std::optional<std::int32_t> before;
    /// True when it goes with its window and isn't kept.
    bool temporary = false;
};

/// The controls of a command bar or of a menu.
class CommandBarControls
{
public:
    virtual ~CommandBarControls() = default;

    virtual std::int32_t Count() = 0;
    /// The control at a position from 1; out of range fails (5).
    virtual Ref<CommandBarControl> Item(std::int32_t index) = 0;
    /// The control of a caption, "&" signs left out of account; an unknown one fails (5).
    virtual Ref<CommandBarControl> ItemCaptioned(const std::string& caption) = 0;
    /// Adds a control; an unknown command or a position out of range fails (5).
    virtual Ref<CommandBarControl> Add(const CommandBarAddition& addition) = 0;
};

}
