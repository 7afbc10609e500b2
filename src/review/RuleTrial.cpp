#include "review/RuleTrial.h"

#include "base/Text.h"

#include <algorithm>
#include <iterator>

namespace tempodial {

RuleTrial::Result RuleTrial::TryOne(const RuledProject& project, const FoldedText& subject, const FoldedText& people)
{
    Result result { .project = &project };
    if (const auto* term = project.subject.TermIn(subject)) {
        result.rule = Rule::Subject;
        result.term = term->text;
        const auto* excluding = project.notSubject.TermIn(subject);
        result.matches = excluding == nullptr;
        if (excluding != nullptr) {
            result.excludedBy = excluding->text;
        }
    }
    // People are asked although the subject holds an excluded word.
    if (const auto* term = result.matches ? nullptr : project.people.TermIn(people)) {
        result.rule = Rule::People;
        result.term = term->text;
        result.matches = true;
    }
    return result;
}

bool RuleTrial::IsMatch(const RuledProject& project, const FoldedText& subject, const FoldedText& people)
{
    return (project.subject.TermIn(subject) != nullptr && project.notSubject.TermIn(subject) == nullptr)
        || (!people.IsEmpty() && project.people.TermIn(people) != nullptr);
}

std::vector<RuleTrial::Result> RuleTrial::Try(const std::string& subject, const std::string& people) const
{
    const FoldedText foldedSubject(subject);
    const FoldedText foldedPeople(people);
    std::vector<Result> results;
    std::transform(mProjects.begin(), mProjects.end(), std::back_inserter(results),
        [&](const auto& project) { return TryOne(project, foldedSubject, foldedPeople); });
    return results;
}

const RuledProject* RuleTrial::First(const FoldedText& subject, const FoldedText& people) const
{
    const auto found = std::find_if(
        mProjects.begin(), mProjects.end(), [&](const auto& project) { return IsMatch(project, subject, people); });
    return found == mProjects.end() ? nullptr : &*found;
}

const RuledProject* RuleTrial::Named(const std::string& name) const
{
    const auto found = std::find_if(mProjects.begin(), mProjects.end(),
        [&name](const auto& project) { return EqualIgnoringCase(project.name, name); });
    return found == mProjects.end() ? nullptr : &*found;
}

}
