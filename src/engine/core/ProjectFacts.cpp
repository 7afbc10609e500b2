#include "engine/core/ProjectFacts.h"

#include "base/Text.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/projects/ProjectRule.h"

#include <utility>

namespace tempodial {

std::string ProjectListValue()
{
    TempodialStrings strings;
    strings.Initialize();
    return strings.mRegistryValueProjectList;
}

std::vector<std::string> ListedProjects(const std::string& value)
{
    return Split(value, "|");
}

std::vector<std::string> SubjectTerms(const std::string& rule)
{
    std::vector<std::string> terms;
    const auto read = ProjectRule::ForSubjects(rule);
    for (const auto& term : read.Terms()) {
        if (auto trimmed = Trim(term); !trimmed.empty()) {
            terms.push_back(std::move(trimmed));
        }
    }
    return terms;
}

}
