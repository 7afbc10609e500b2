#pragma once

#include <array>
#include <string_view>

namespace tempodial {

/// The desktops that are known, in the order in which they are tried. The first leaves a session to the others that
/// only pretends to be one of its own.
inline constexpr std::array<std::string_view, 4> DesktopNames { "x11", "wlr", "kwin", "gnome" };

}
