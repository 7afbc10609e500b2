#include "desktop/qt/LogSearch.h"

#include "review/ActivityReader.h"

#include <chrono>

namespace tempodial {

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
    const auto before = mFound.size();
    try {
        mWalk->GoOn([this](Activity&& activity) { mFound.push_back(std::move(activity)); });
    } catch (const std::exception& failure) {
        mTimer.stop();
        mDesk.Fail(failure.what());
        return;
    }
    if (mWalk->IsDone()) {
        mTimer.stop();
    }
    if (mFound.size() != before || mWalk->IsDone()) {
        mWhenFound();
    }
}

}
