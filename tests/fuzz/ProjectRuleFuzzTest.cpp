#include "base/Text.h"
#include "engine/projects/TempodialProject.h"
#include "fuzz/FuzzTarget.h"

namespace tempodial {

namespace {

void CheckRule(const ProjectRule& rule, const std::string& text)
{
    Hold(rule.Text() == text, "a rule is shown as it was typed");
    Hold(rule.MatchTerms().size() <= rule.Terms().size(), "a term is matched once");
    for (const auto& term : rule.Terms()) {
        Hold(rule.HasTerm(term), "a rule has its terms");
    }
    for (const auto& term : rule.MatchTerms()) {
        Hold(!term.parts.empty(), "a term has something to match");
    }
}

/// A line each: a rule, a rule against, a rule for people, a subject, people.
void MatchRules(std::string_view input)
{
    auto lines = Split(input, "\n");
    lines.resize(5);
    CheckRule(ProjectRule::ForSubjects(lines[0]), lines[0]);
    CheckRule(ProjectRule::ForPeople(lines[0]), lines[0]);

    TempodialProject project(MakeRef<Platform>());
    project.Initialize(MakeRef<TempodialDebugLog>(MakeRef<Platform>()), "Project", lines[0], lines[2], lines[1], "2");
    const bool matches = project.isSubjectMatch(lines[3]);
    Hold(project.isSubjectMatch(lines[3]) == matches, "a rule gives the same answer twice");
    project.SetNotSubjectRule("");
    Hold(!matches || project.isSubjectMatch(lines[3]), "without the rule against it, it still matches");
    project.isPeopleMatch(lines[4]);
    project.AppendSubjectRule(lines[3]);
    project.AppendSubjectRule(lines[3]);
    project.AppendPeopleRule(lines[4]);
    project.isSubjectMatch(lines[3]);
    project.isPeopleMatch(lines[4]);
}

}

TEMPODIAL_FUZZ_TARGET(ProjectRule, MatchRules)

}
