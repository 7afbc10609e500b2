#pragma once

#include "platform/commandbars/CommandBar.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// The command bars of a window.
class CommandBars
{
public:
    virtual ~CommandBars() = default;

    virtual std::int32_t Count() = 0;
    /// The bar at a position from 1; out of range fails (5).
    virtual Ref<CommandBar> Item(std::int32_t index) = 0;
    /// The bar of a name; an unknown one fails (5), as does any as long as the window has no bars yet.
    virtual Ref<CommandBar> ItemNamed(const std::string& name) = 0;
    /// Adds an empty bar, not yet visible; a name in use fails (5).
    virtual Ref<CommandBar> Add(const std::string& name) = 0;
};

}
