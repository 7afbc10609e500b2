#pragma once

#include "desktop/SearchWalk.h"
#include "desktop/qt/Desk.h"

#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace tempodial {

/// A search through all of the log, in slices between which the windows move.
class LogSearch
{
public:
    explicit LogSearch(Desk& desk);

    /// So many are found at most, the newest ones.
    static constexpr std::size_t Most = 10'000;

    /// More was found, or all was seen; told a few times a second.
    std::function<void()> mWhenFound;

    void Begin(const SearchTerms& terms);
    void End();
    /// True from its begin to its end, also when all was seen.
    bool IsOn() const { return static_cast<bool>(mWalk); }
    bool IsDone() const { return mWalk && (mWalk->IsDone() || IsFull()); }
    bool IsFull() const { return mFound.size() >= Most; }
    /// Reads again what was found, since the log has changed.
    void Refresh();
    /// What was found so far, newest first.
    const std::vector<Activity>& Found() const { return mFound; }

private:
    void GoOn();

    Desk& mDesk;
    QTimer mTimer;
    std::unique_ptr<SearchWalk> mWalk;
    std::vector<Activity> mFound;
    std::size_t mTold = 0;
    std::chrono::steady_clock::time_point mToldWhen;
};

}
