#include "desktop/LogWatch.h"

#include "review/ActivityReader.h"
#include "session/WorkLogFolder.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

/// So many changes are remembered.
constexpr std::size_t MostChanges = 64;

}

LogWatch::LogWatch(const Profile& profile)
    : mProfile(profile)
    , mWatch(profile.Mailbox(),
          { .ItemsChanged = [this](const ItemChanges& changes) { Take(changes); },
              .FoldersChanged = [this] { Note({ .isAnything = true, .saved = {}, .gone = {} }); } })
{
}

void LogWatch::Take(const ItemChanges& changes)
{
    if (changes.isAnything) {
        Note({ .isAnything = true, .saved = {}, .gone = {} });
        return;
    }
    const auto workLog = WorkLogOf(mProfile);
    const auto found = workLog ? changes.folders.find(workLog->EntryID()) : changes.folders.end();
    if (found != changes.folders.end()) {
        Note({ .isAnything = false, .saved = found->second.saved, .gone = found->second.gone });
    }
}

void LogWatch::Note(Change change)
{
    ++mCount;
    mChanges.push_back(std::move(change));
    if (mChanges.size() > MostChanges) {
        mChanges.pop_front();
    }
}

bool LogWatch::HasChanged(std::int64_t since, const Period& days, const std::vector<Activity>& shown) const
{
    const auto news = mCount - since;
    if (news > static_cast<std::int64_t>(mChanges.size())) {
        return true;
    }
    if (news == 0) {
        return false;
    }
    std::set<std::int64_t> numbers;
    for (const auto& activity : shown) {
        numbers.insert(activity.number);
    }
    const auto isShown = [&numbers](std::int64_t number) { return numbers.count(number) > 0; };
    std::set<std::int64_t> others;
    for (auto change = mChanges.end() - news; change != mChanges.end(); ++change) {
        if (change->isAnything || std::any_of(change->gone.begin(), change->gone.end(), isShown)
            || std::any_of(change->saved.begin(), change->saved.end(), isShown)) {
            return true;
        }
        others.insert(change->saved.begin(), change->saved.end());
    }
    return HasAnyIn(days, { others.begin(), others.end() });
}

bool LogWatch::HasAnyIn(const Period& days, const std::vector<std::int64_t>& numbers) const
{
    bool isFound = false;
    EachNumbered(mProfile, numbers, [&](const Activity& activity) {
        isFound = activity.start < days.last.AddDays(1) && activity.end >= days.first;
        return !isFound;
    });
    return isFound;
}

}
