#include "desktop/qt/LogSearch.h"

#include "review/ActivityReader.h"

#include <chrono>
#include <cstdint>

namespace tempodial {

namespace {

/// What is found is shown so often, since showing it costs more than finding it.
constexpr std::chrono::milliseconds BetweenNews(250);

}

LogSearch::LogSearch(Desk& desk)
    : mDesk(desk)
{
    mTimer.setInterval(0);
    QObject::connect(&mTimer, &QTimer::timeout, [this] { GoOn(); });
}

void LogSearch::Begin(const SearchTerms& terms)
{
    const auto& profile = mDesk.Profile();
    mFound.clear();
    mTold = 0;
    mWalk = std::make_unique<SearchWalk>(terms,
        SearchWalk::Source { .read = [&profile](const Period& days) { return ActivitiesStartingIn(profile, days); },
            .lastStartBefore = [&profile](Date moment) { return LastStartBefore(profile, moment); },
            .time = [] { return std::chrono::steady_clock::now().time_since_epoch(); } });
    mTimer.start();
}

void LogSearch::End()
{
    mTimer.stop();
    mWalk.reset();
    mFound.clear();
}

void LogSearch::GoOn()
{
    try {
        mWalk->GoOn([this](Activity&& activity) {
            if (!IsFull()) {
                mFound.push_back(std::move(activity));
            }
        });
    } catch (const std::exception& failure) {
        mTimer.stop();
        mDesk.Fail(failure);
        return;
    }
    if (IsDone()) {
        mTimer.stop();
    }
    const auto now = std::chrono::steady_clock::now();
    if (IsDone() || (mFound.size() != mTold && now - mToldWhen >= BetweenNews)) {
        mTold = mFound.size();
        mToldWhen = now;
        mWhenFound();
    }
}

void LogSearch::Refresh()
{
    std::vector<std::int64_t> numbers;
    numbers.reserve(mFound.size());
    for (const auto& activity : mFound) {
        numbers.push_back(activity.number);
    }
    std::vector<Activity> found;
    EachNumbered(mDesk.Profile(), numbers, [&found](Activity& activity) {
        found.push_back(std::move(activity));
        return true;
    });
    mFound = std::move(found);
}

}
