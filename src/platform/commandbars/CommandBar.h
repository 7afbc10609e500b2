#pragma once

#include "platform/commandbars/CommandBarControls.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tempodial {

/// Office's numbers for places of bars.
enum class BarPosition : std::int32_t { Top = 1, Floating = 4, MenuBar = 6 };

/// What to look for among the controls of a bar: what isn't given doesn't matter.
struct ControlSearch
{
    std::optional<std::int32_t> id;
    std::optional<std::string> tag;
};

/// A bar of commands. Every member fails (-2147221233) when the bar is gone.
class CommandBar
{
public:
    virtual ~CommandBar() = default;

    virtual std::string Name() const = 0;
    virtual BarPosition Position() const = 0;
    virtual void SetPosition(BarPosition position) = 0;
    virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual Ref<CommandBarControls> Controls() = 0;
    /// The first control that fits, menus not entered; nothing when there is none.
    virtual Ref<CommandBarControl> FindControl(const ControlSearch& search) = 0;
    /// Removes the bar; one of the host's own can't be removed (5).
    virtual void Delete() = 0;
};

}
