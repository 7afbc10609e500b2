#pragma once

#include "desktop/SearchTerms.h"
#include "review/Period.h"

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace tempodial {

/// A search through all of a work log, the newest first, in slices so short that a window goes on moving.
class SearchWalk
{
public:
    /// Where activities come from.
    struct Source
    {
        /// Those that start in a span of days, in order of start.
        std::function<std::vector<Activity>(const Period& days)> read;
        /// When the last one before a moment starts; nothing when none does.
        std::function<std::optional<Date>(Date moment)> lastStartBefore;
        /// A clock that only goes forward.
        std::function<std::chrono::nanoseconds()> time;
    };

    SearchWalk(SearchTerms terms, Source source);

    /// Goes on for a slice of at most eight milliseconds, as far as a day can be read in that, and tells of what it
    /// finds, newest first. Fails as reading does, and can then be called again.
    void GoOn(const std::function<void(Activity&& activity)>& found);
    /// True when all was seen.
    bool IsDone() const { return !mNext; }
    /// The day up to which all later ones were seen; nothing at the beginning and at the end.
    const std::optional<Date>& ReachedDay() const { return mReached; }

private:
    void SeeSpan(const std::function<void(Activity&& activity)>& found);

    SearchTerms mTerms;
    Source mSource;
    /// The start of the next one to be seen.
    std::optional<Date> mNext;
    std::optional<Date> mReached;
    /// How many days are read at once.
    int mDays = 1;
};

}
