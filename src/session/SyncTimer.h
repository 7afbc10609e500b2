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
    /// When its calendar has it go off next; nothing when it isn't enabled, and when that is neither hourly nor daily.
    std::optional<Date> next;

    /// The one that is enabled for this user or for all, or that the user has at least, seen from a moment; nothing
    /// when there is none. Fails never.
    static std::optional<SyncTimer> Of(Date now, FileSystemObject& files);
};

}
