#include "desktop/SearchWalk.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

constexpr std::chrono::nanoseconds Slice = std::chrono::milliseconds(8);
/// A span that takes less than the one share of a slice may be longer, one that takes more than the other is shorter.
constexpr int ShortShare = 8;
constexpr int LongShare = 3;
constexpr int MostDays = 366;

}

SearchWalk::SearchWalk(SearchTerms terms, Source source)
    : mTerms(std::move(terms))
    , mSource(std::move(source))
    , mNext(mSource.lastStartBefore(Period::Always().last.AddDays(1)))
{
}

void SearchWalk::GoOn(const std::function<void(Activity&& activity)>& found)
{
    const auto begin = mSource.time();
    auto now = begin;
    std::chrono::nanoseconds took {};
    while (mNext && now - begin + took <= Slice) {
        SeeSpan(found);
        took = mSource.time() - now;
        now += took;
        if (took * ShortShare < Slice) {
            mDays = std::min(mDays * 2, MostDays);
        } else if (took * LongShare > Slice) {
            mDays = std::max(mDays / 2, 1);
        }
    }
}

void SearchWalk::SeeSpan(const std::function<void(Activity&& activity)>& found)
{
    const auto last = mNext->Day();
    const Period days { std::max(last.AddDays(1 - mDays), Period::Always().first), last };
    auto activities = mSource.read(days);
    mNext = mSource.lastStartBefore(days.first);
    mReached = mNext ? std::optional(days.first) : std::nullopt;
    std::reverse(activities.begin(), activities.end());
    for (auto& activity : activities) {
        if (mTerms.Match(activity)) {
            found(std::move(activity));
        }
    }
}

}
