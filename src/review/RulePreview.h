#pragma once

#include "review/Activity.h"
#include "review/ProjectMoves.h"
#include "review/RuleTrial.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// What rules would change on past activities.
struct RulePreview
{
    struct Target
    {
        std::int64_t activity = 0;
        std::string project;
    };

    /// The activities whose project would be another than before.
    ProjectMoves moves;
    /// The numbers of those activities, each with the project that it would come to.
    std::vector<Target> targets;
    /// Those of them that belong to another project by precedence, from that one to the one that they would come to.
    ProjectMoves disputed;
    /// Those that keep a project which a person chose, although the rules give another.
    std::int64_t keptByHand = 0;

    /// What applying one of the trial's projects would change: each activity that its rules match comes to it.
    static RulePreview OfOne(
        const RuleTrial& trial, const std::string& project, const std::vector<Activity>& activities);
    /// What applying all projects would change: each activity comes to the first project whose rules match it. One that
    /// a person gave its project keeps it, and so does one that no rule matches. Or only those without a project are
    /// taken, whoever made them so.
    static RulePreview OfAll(const RuleTrial& trial, const std::vector<Activity>& activities, bool onlyUnassigned);
};

}
