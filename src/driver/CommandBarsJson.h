#pragma once

#include "base/Ref.h"
#include "driver/Json.h"
#include "host/windows/HostCommandBarControl.h"
#include "host/windows/HostCommandBars.h"

#include <string>
#include <vector>

namespace tempodial {

/// The command bars of a window with all their controls, as a person sees them and as a program finds them.
Json CommandBarsJson(const HostCommandBars& bars);

/// The control that captions lead to, from one on a bar through the menus below. Fails with `RequestError` when there
/// is none, and as working it does (5) when a person can't open a menu on the way.
Ref<HostCommandBarControl> FindCommand(
    const HostCommandBars& bars, const std::string& bar, const std::vector<std::string>& path);

}
