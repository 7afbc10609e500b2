#pragma once

#include "addin/base/Windows.h"

#include <vector>

namespace tempodial {

/// A control and the parts that it is made of, such as the box inside of a combo box: each is a window, and has the
/// pointer or the keys by itself.
inline std::vector<HWND> WithItsParts(HWND control)
{
    std::vector<HWND> windows { control };
    for (auto* part = GetWindow(control, GW_CHILD); part != nullptr; part = GetWindow(part, GW_HWNDNEXT)) {
        windows.push_back(part);
    }
    return windows;
}

}
