#include "review/RuledProject.h"

#include "base/Text.h"
#include "engine/foundation/ActivitySubject.h"
#include "session/ProductFacts.h"

#include <algorithm>
#include <utility>

namespace tempodial {

namespace {

/// A project of a record of the list.
RuledProject ReadRecord(const Ref<XmlDocument>& document)
{
    const auto text = [&document](const char* path) {
        const auto node = document->SelectSingleNode(path);
        return node ? node->Text() : std::string(UnknownText);
    };
    auto precedence = text("project/precedence");
    if (precedence != "1" && precedence != "3") {
        precedence = "2";
    }
    return { .name = text("project/name"),
        .precedence = std::move(precedence),
        .subject = ProjectRule::ForSubjects(text("project/subjrules")),
        .notSubject = ProjectRule::ForSubjects(text("project/notsubjrules")),
        .people = ProjectRule::ForPeople(text("project/peoplerules")) };
}

}

std::vector<RuledProject> RuledProject::ReadAll(const Profile& profile)
{
    std::vector<RuledProject> projects;
    auto records = Split(profile.Registry()->Get(Hive::CurrentUser, ProductKey, ProjectsValue).ToText(), "|");
    if (!records.empty()) {
        records.pop_back(); // What no sign ends is no record.
    }
    std::string lastName;
    for (const auto& record : records) {
        const auto document = profile.Surroundings().xml->NewDocument();
        document->LoadXML(record);
        auto project = ReadRecord(document);
        if (record.empty() || project.name == "Unknown" || (!projects.empty() && project.name == lastName)) {
            break;
        }
        lastName = project.name;
        const bool isThere = std::any_of(projects.begin(), projects.end(), [&project](const auto& other) {
            return other.precedence == project.precedence && EqualIgnoringCase(other.name, project.name);
        });
        if (!isThere) {
            projects.push_back(std::move(project));
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
