#include "desktop/SilenceNotice.h"

namespace tempodial {

std::optional<std::string> SilenceNotice::Ask(const std::optional<Date>& lastLine, Date now, const WorkingHours& hours)
{
    if (!lastLine || mTold == lastLine || !hours.IsTrackerSilent(*lastLine, now)) {
        return std::nullopt;
    }
    mTold = lastLine;
    return "The tracker has written nothing for two hours of work: see whether it runs, and start it.";
}

}
