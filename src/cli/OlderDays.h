#pragma once

#include "base/Date.h"
#include "cli/ConnectedRun.h"
#include "cli/Options.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// The days with tracker's files that are too old for a usual sync, and their import: day by day, oldest first, each as
/// a sync of that day would have taken it in.
class OlderDays
{
public:
    /// Imports what a sync of that many days back from the clock's day does.
    using Sync = std::function<void(std::int32_t days)>;

    /// Finds the days from one on, in the profile that the options name: those of live files and of kept ones.
    OlderDays(const Options& options, Date since, Date now);

    bool AreNone() const { return mDays.empty(); }
    /// The options of a run for which no file of these days is too old when it starts.
    Options Started(Options options) const;
    /// Imports them, and leaves the clock at the last; ends early when the user asks for it.
    void Import(ConnectedRun& run, const Sync& sync) const;

private:
    void Find(const std::string& folder, Date since, Date now);

    std::vector<Date> mDays;
};

}
