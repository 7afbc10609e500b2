#pragma once

#include "platform/objectmodel/MAPIFolder.h"
#include "platform/objectmodel/NameSpace.h"
#include "session/Profile.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// The work log of a session, without the add-in: the folder of that identity, else the calendar's folder "Tempodial";
/// nothing when there is neither.
Ref<MAPIFolder> FindWorkLog(const Ref<NameSpace>& session, const std::string& entryID);

/// The same of a profile.
Ref<MAPIFolder> WorkLogOf(const Profile& profile);
/// How many activities are in it.
std::int32_t CountActivities(const Profile& profile);

}
