#include "desktop/WindowTitle.h"

#include "base/Failure.h"
#include "session/ProductFacts.h"
#include "session/WorkLogFolder.h"

namespace tempodial {

std::optional<std::string> WindowTitle(const Profile& profile, HostExplorer& explorer)
{
    try {
        const auto workLog = WorkLogOf(profile);
        const bool isLog = workLog && workLog->EntryID() == explorer.CurrentFolder()->EntryID();
        return isLog ? ProductName : explorer.Caption();
    } catch (const Failure&) {
        return std::nullopt;
    }
}

}
