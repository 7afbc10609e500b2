#pragma once

#include "session/Profile.h"
#include "slots/Presence.h"

namespace tempodial {

/// Adds the times of the slots in tracker files that no import has finished.
void AddWaitingLines(const Profile& profile, Presence& time);

}
