#pragma once

namespace tempodial {

/// What the host calls the bars of a window: its menus, and its buttons.
inline constexpr auto MenuBarName = "Menu Bar";
inline constexpr auto ButtonBarName = "Standard";

}
