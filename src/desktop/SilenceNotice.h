#pragma once

#include "desktop/WorkingHours.h"

#include <optional>
#include <string>

namespace tempodial {

/// Tells a person at work that the tracker writes nothing, once for each silence.
class SilenceNotice
{
public:
    /// What is to be told now; nothing while the tracker writes, when it never did, and when it was told already. Takes
    /// when its last line was written.
    std::optional<std::string> Ask(const std::optional<Date>& lastLine, Date now, const WorkingHours& hours);

private:
    /// The last line of the silence that was told.
    std::optional<Date> mTold;
};

}
