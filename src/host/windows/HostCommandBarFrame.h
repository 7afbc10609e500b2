#pragma once

#include "host/windows/ChangeEvents.h"

#include <cstdint>
#include <functional>

namespace tempodial {

/// What the command bars of a window share with all that is on them.
struct HostCommandBarFrame
{
    /// Runs the built-in command of a number in the window, which may be gone; nothing as long as there are no bars.
    std::function<void(std::int32_t id)> run;
    /// Tells whoever draws the bars.
    ChangeSource changes;
};

}
