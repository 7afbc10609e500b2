#pragma once

#include "desktop/Titles.h"
#include "review/Activity.h"
#include "review/RuleTrial.h"

#include <string>
#include <vector>

namespace tempodial {

/// Why an activity has its project, in one sentence; also when the rules would now give another. Where titles are
/// hidden no term of a rule is told.
std::string WhySentence(const Activity& activity, const RuleTrial& rules, Titles titles);

/// What the rules of one project say of an activity, in words.
struct WhyLine
{
    std::string project;
    std::string precedence;
    /// The term that hit, and where; empty when none did.
    std::string hit;
    /// The term that excluded it, and where; empty when none did.
    std::string excluded;
    /// What comes of it.
    std::string outcome;
};

/// The same of all projects in the order in which they are tried.
std::vector<WhyLine> WhyLines(const Activity& activity, const RuleTrial& rules, Titles titles);

}
