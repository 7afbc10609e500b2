#pragma once

#include "review/ActivityGroup.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// A word of the subjects of activities, in lower case: at least three letters and digits.
struct SubjectWord
{
    std::string word;
    /// The time of the activities whose subject a rule of that word matches.
    std::int64_t minutes = 0;

    friend bool operator==(const SubjectWord&, const SubjectWord&) = default;

    /// The words that stand for most of the time of some groups, largest first, ten at most. One of which more than
    /// half belongs to one before it is left out.
    static std::vector<SubjectWord> Largest(const std::vector<ActivityGroup>& groups);
};

}
