#pragma once

#include "track/DesktopSource.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tempodial {

/// Waits, for what the desktop tells alone, until something is true.
inline bool Comes(DesktopSource& desktop, const std::function<bool()>& isThere)
{
    constexpr int LongestWait = 10000;
    while (!isThere()) {
        pollfd waited { desktop.Descriptor(), desktop.Events(), 0 };
        if (::poll(&waited, 1, LongestWait) != 1 || !desktop.Dispatch()) {
            return isThere();
        }
    }
    return true;
}

/// Waits until a window with a title is in front.
inline bool ComesInFront(DesktopSource& desktop, const std::string& program, const std::string& title)
{
    const bool isThere = Comes(desktop, [&] {
        const auto window = desktop.Window();
        return window && window->program == program && window->title == title;
    });
    const auto window = desktop.Window();
    EXPECT_TRUE(isThere) << (window ? window->program + ": " + window->title : "nothing");
    return isThere;
}

}
