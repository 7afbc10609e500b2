#include "review/RuledProject.h"

#include "base/Text.h"
#include "session/ProductFacts.h"
#include "session/ProjectRecords.h"

#include <algorithm>
#include <utility>

namespace tempodial {

std::vector<RuledProject> RuledProject::ReadAll(const Profile& profile)
{
    const auto text = profile.Registry()->Get(Hive::CurrentUser, ProductKey, ProjectsValue).ToText();
    std::vector<RuledProject> projects;
    for (auto& record : ProjectRecords::ReadByAddIn(text, profile.Surroundings().xml)) {
        const bool isOdd = record.precedence != "1" && record.precedence != "3";
        const auto precedence = isOdd ? "2" : record.precedence;
        const bool isThere = std::any_of(projects.begin(), projects.end(), [&](const auto& other) {
            return other.precedence == precedence && EqualIgnoringCase(other.name, record.name);
        });
        if (!isThere) {
            projects.push_back({ .name = std::move(record.name),
                .precedence = precedence,
                .subjectRule = std::move(record.subjectRule),
                .notSubjectRule = std::move(record.notSubjectRule),
                .peopleRule = std::move(record.peopleRule) });
        }
    }
    Sort(projects);
    return projects;
}

void RuledProject::Sort(std::vector<RuledProject>& projects)
{
    std::stable_sort(projects.begin(), projects.end(), [](const RuledProject& one, const RuledProject& other) {
        return one.precedence != other.precedence ? one.precedence < other.precedence
                                                  : CompareIgnoringCase(one.name, other.name) < 0;
    });
}

}
