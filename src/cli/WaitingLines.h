#pragma once

#include "session/Profile.h"
#include "slots/Presence.h"

namespace tempodial {

/// Adds the times of the slots that the profile's recorder is going to write yet, as far as its state tells: that is at
/// most a minute old.
void AddRecordersTime(const Profile& profile, Presence& time);
/// Adds the times of the slots in tracker files that no import has finished.
void AddWaitingLines(const Profile& profile, Presence& time);

}
