#include "review/KeywordCandidates.h"

#include "engine/foundation/ActivitySubject.h"

namespace tempodial {

std::vector<std::string> KeywordCandidates(const Activity& activity)
{
    std::vector<std::string> candidates;
    if (!activity.description.empty()) {
        const auto& people = activity.people;
        candidates.push_back(
            DescriptionKeyword(people.empty() ? activity.description : WithoutPeople(activity.description, people)));
    }
    if (!activity.type.empty()) {
        candidates.push_back(ApplicationKeyword(activity.type));
    }
    for (auto& person : PeopleKeywords(activity.people)) {
        candidates.push_back(std::move(person));
    }
    return candidates;
}

}
