#pragma once

#include "base/Date.h"
#include "platform/system/FileSystemObject.h"

#include <optional>
#include <string>

namespace tempodial {

/// The timer of the user's session by which the system syncs of itself.
struct SyncTimer
{
    /// The name of its unit.
    std::string unit;
    /// When its calendar has it go off next; nothing when that is neither hourly nor daily.
    std::optional<Date> next;

    /// The one that is enabled for this user or for all, seen from a moment; nothing when none is. Fails never.
    static std::optional<SyncTimer> EnabledAt(Date now, FileSystemObject& files);
};

}
