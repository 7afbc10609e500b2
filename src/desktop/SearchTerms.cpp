#include "desktop/SearchTerms.h"

#include "base/Text.h"

#include <algorithm>

namespace tempodial {

SearchTerms::SearchTerms(std::string_view typed)
    : mWords(Split(Fold(typed), " "))
{
    std::erase(mWords, "");
}

bool SearchTerms::Match(const Activity& activity) const
{
    if (mWords.empty()) {
        return true;
    }
    // No word has a line end, so none is found across two fields.
    const auto text
        = Fold(ProjectNameOf(activity) + "\n" + activity.type + "\n" + activity.description + "\n" + activity.people);
    return std::all_of(mWords.begin(), mWords.end(),
        [&text](const std::string& word) { return text.find(word) != std::string::npos; });
}

}
