#pragma once

#include "host/windows/HostExplorer.h"
#include "session/Profile.h"

#include <optional>
#include <string>

namespace tempodial {

/// The title of a window: the program's name for the work log, else the model's caption, which names the folder;
/// nothing when that is gone.
std::optional<std::string> WindowTitle(const Profile& profile, HostExplorer& explorer);

}
