#pragma once

#include "host/store/MailboxWatch.h"
#include "review/Activity.h"
#include "review/Period.h"
#include "session/Profile.h"

#include <cstdint>
#include <deque>
#include <set>
#include <vector>

namespace tempodial {

/// Hears what changes in a work log, so that whoever shows some of it reads again only when that has changed.
class LogWatch
{
public:
    /// The profile must live as long as this.
    explicit LogWatch(const Profile& profile);

    /// Goes up with each change.
    std::int64_t Count() const { return mCount; }
    /// True when something may have changed since a count in the days that show those activities.
    bool HasChanged(std::int64_t since, const Period& days, const std::vector<Activity>& shown) const;

private:
    struct Change
    {
        /// Anything may have changed.
        bool isAnything = false;
        std::set<std::int64_t> saved;
        std::set<std::int64_t> gone;
    };

    void Take(const ItemChanges& changes);
    void Note(Change change);
    /// True when one of those begins or ends in the days.
    bool HasAnyIn(const Period& days, const std::vector<std::int64_t>& numbers) const;

    const Profile& mProfile;
    std::int64_t mCount = 0;
    /// The latest ones.
    std::deque<Change> mChanges;
    MailboxWatch mWatch;
};

}
