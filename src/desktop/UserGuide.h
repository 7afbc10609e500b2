#pragma once

#include "session/Profile.h"

#include <string>

namespace tempodial {

/// The path of the user guide in the install folder; fails (53) with what to do when it isn't there.
std::string UserGuidePath(const Profile& profile);

}
