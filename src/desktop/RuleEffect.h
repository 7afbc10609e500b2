#pragma once

#include "desktop/RuleEdit.h"
#include "review/Activity.h"
#include "review/Period.h"
#include "review/ProjectMoves.h"
#include "review/RuleTrial.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tempodial {

/// What the edited rules of a project would change on past activities when it is applied back, found out from today on
/// back, in slices so short that typing goes on. It is what the product does then: it goes by the rules of that project
/// alone, also where the activity has another.
class RuleEffect
{
public:
    /// Where activities come from.
    struct Source
    {
        /// Those that start in a span of days, in order of start.
        std::function<std::vector<Activity>(const Period& days)> read;
        /// When the last one before a moment starts; nothing when none does.
        std::function<std::optional<Date>(Date moment)> lastStartBefore;
    };

    /// Takes the projects as they are kept, and the activities that the product passes over since they are open.
    RuleEffect(RuleEdit edit, std::vector<RuledProject> kept, std::set<std::int64_t> open, Date today);

    /// Goes on by some weeks; fails as reading does, and can then be called again.
    void GoOn(const Source& source);
    bool IsDone() const { return mIsDone; }

    /// The activities that would change, newest first, as they are now.
    const std::vector<Activity>& Changes() const { return mChanges; }
    /// The same gathered by the project that they have now.
    std::vector<ProjectMoves::Move> Moves() const { return mMoves.LargestFirst(); }
    /// What would change, in a sentence.
    std::string Title() const;
    /// What else is to be known of it, a sentence each.
    std::vector<std::string> Notes() const;

private:
    /// Puts the edited rules in the place of those that are kept.
    static std::vector<RuledProject> Edited(std::vector<RuledProject> kept, const RuleEdit& edit);
    void See(const std::vector<Activity>& activities);
    std::string DaysText() const;

    RuleEdit mEdit;
    std::set<std::int64_t> mOpen;
    RuleTrial mTrial;
    bool mIsRefused = false;
    bool mLosesPeople = false;
    bool mIsDone;
    Period mLeft;
    std::vector<Activity> mChanges;
    ProjectMoves mMoves;
    /// Those of them that another project is tried for first.
    ProjectMoves mDisputed;
    std::int64_t mUnmatched = 0;
    std::int64_t mKeptOpen = 0;
};

}
