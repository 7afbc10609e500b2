#pragma once

#include "cli/DayRange.h"
#include "terminal/ArgumentList.h"

#include <optional>
#include <string>

namespace tempodial {

/// The arguments --from and --to of a command that works on a range of days.
class DayRangeArguments
{
public:
    /// What the help of such a command says of them.
    static constexpr auto Help = "Without a range it is today; where only one end is given, the other is today, or\n"
                                 "the same day when that comes out of order.\n";

    /// Adds them to a command; they are kept here as they are parsed.
    void Declare(ArgumentList& arguments);
    /// The range that they name. Fails with a `UsageError`.
    DayRange Days(Date now) const;

private:
    std::optional<std::string> mFrom;
    std::optional<std::string> mTo;
};

}
