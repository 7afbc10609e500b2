#include "desktop/ShownLog.h"

#include "review/PeriodColumns.h"

#include <algorithm>
#include <iterator>

namespace tempodial {

void ShownLog::Show(const Period& days)
{
    auto activities = mReader(days);
    mDays = days;
    mAll = std::move(activities);
    Take();
    SumUp();
}

void ShownLog::Search(const SearchTerms& terms)
{
    mTerms = terms;
    Take();
}

void ShownLog::Colour(ColourChoice choice)
{
    mChoice = choice;
    SumUp();
}

void ShownLog::Take()
{
    mShown.clear();
    std::copy_if(mAll.begin(), mAll.end(), std::back_inserter(mShown),
        [this](const Activity& activity) { return mTerms.Match(activity); });
}

void ShownLog::SumUp()
{
    mColoured = tempodial::ColouredBy(mChoice, mAll);
    const auto counted = [this](const std::function<void(const Activity& activity)>& take) {
        for (const auto& activity : mAll) {
            // What began before these days counts in those.
            if (activity.start >= mDays.first) {
                take(activity);
            }
        }
    };
    mSums = Totals::Of(counted, mColoured == Coloured::Project ? RowKind::Project : RowKind::Application,
        ColumnsOf(mDays, ColumnSize::Day, nullptr));
    mUnassigned = 0;
    counted([this](const Activity& activity) { mUnassigned += IsUnassigned(activity) ? activity.duration : 0; });
}

int ShownLog::DayCount() const
{
    return DaysBetween(mDays.first, mDays.last) + 1;
}

std::optional<std::size_t> ShownLog::PlaceOf(std::int64_t number) const
{
    const auto found = std::find_if(
        mShown.begin(), mShown.end(), [number](const Activity& activity) { return activity.number == number; });
    return found == mShown.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - mShown.begin()));
}

const std::string& ShownLog::ColourNameOf(const Activity& activity) const
{
    return mColoured == Coloured::Project ? ProjectNameOf(activity) : activity.type;
}

}
