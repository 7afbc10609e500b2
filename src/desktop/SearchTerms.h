#pragma once

#include "review/Activity.h"

#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// What is searched for: words that must all be in an activity's project, application, description or people, whatever
/// the case of their letters.
class SearchTerms
{
public:
    /// Takes what was typed; nothing finds all.
    explicit SearchTerms(std::string_view typed);

    /// True when nothing is searched for.
    bool AreEmpty() const { return mWords.empty(); }
    bool Match(const Activity& activity) const;

private:
    std::vector<std::string> mWords;
};

}
