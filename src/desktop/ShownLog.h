#pragma once

#include "desktop/ColourBook.h"
#include "desktop/ColourChoice.h"
#include "desktop/SearchTerms.h"
#include "review/Activity.h"
#include "review/Period.h"
#include "review/Totals.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace tempodial {

/// The activities of the days that a window shows, with what is told of them together.
class ShownLog
{
public:
    /// Reads the activities that touch a span of days, in order of start.
    using Reader = std::function<std::vector<Activity>(const Period& days)>;

    explicit ShownLog(Reader reader)
        : mReader(std::move(reader))
    {
    }

    /// Shows other days; fails as the reader does, and then shows those before.
    void Show(const Period& days);
    /// Reads the same days again; fails as the reader does, and then nothing has changed.
    void Read() { Show(mDays); }
    /// Shows only what is searched for; the sums stay those of all.
    void Search(const SearchTerms& terms);
    /// True while something is searched for, whether that leaves any out or not.
    bool IsSearched() const { return !mTerms.AreEmpty(); }
    /// Puts by what activities are coloured.
    void Colour(ColourChoice choice);

    const Period& Days() const { return mDays; }
    /// How many days there are.
    int DayCount() const;
    /// What is shown, in order of start.
    const std::vector<Activity>& Activities() const { return mShown; }
    /// The place of the one of that number among them; nothing when it isn't shown.
    std::optional<std::size_t> PlaceOf(std::int64_t number) const;
    /// All of these days, whether the search shows them or not.
    const std::vector<Activity>& All() const { return mAll; }
    /// True when the days have activities, whether the search shows them or not.
    bool HasAny() const { return !mAll.empty(); }

    /// By what activities are coloured.
    Coloured ColouredBy() const { return mColoured; }
    /// The name by which an activity is coloured.
    const std::string& ColourNameOf(const Activity& activity) const;
    /// The time of each name by which activities are coloured, a column each day. Activities count as in reports:
    /// whole, on the day on which they start.
    const Totals& Sums() const { return mSums; }
    /// The minutes that have no project.
    std::int64_t UnassignedMinutes() const { return mUnassigned; }

private:
    void Take();
    void SumUp();

    Reader mReader;
    Period mDays;
    std::vector<Activity> mAll;
    SearchTerms mTerms { "" };
    std::vector<Activity> mShown;
    ColourChoice mChoice = ColourChoice::Automatic;
    Coloured mColoured = Coloured::Project;
    Totals mSums;
    std::int64_t mUnassigned = 0;
};

}
