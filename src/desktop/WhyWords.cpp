#include "desktop/WhyWords.h"

#include "base/Text.h"
#include "session/ProductFacts.h"

#include <utility>

namespace tempodial {

namespace {

/// The term by which a project's rules hit, in words.
std::string TermWords(const RuleTrial::Result& result, Titles titles)
{
    const auto* where = result.rule == RuleTrial::Rule::People ? "people" : "subject";
    const auto term = titles == Titles::Shown ? " \"" + result.term.value_or("") + "\"" : std::string();
    return "the " + std::string(where) + " rule" + term + " of " + result.project->name;
}

/// A term and where it was found.
std::string PlaceWords(const std::string& term, const char* where, Titles titles)
{
    return (titles == Titles::Shown ? "\"" + term + "\" " : "A term ") + where;
}

std::string PrecedenceText(const std::string& precedence)
{
    if (precedence == "1") {
        return "High";
    }
    return precedence == "3" ? "Low" : "Medium";
}

std::string OutcomeText(const RuleTrial::Result& result, bool isGiven)
{
    if (result.matches) {
        return isGiven ? "Given by the rules" : "Matches, but is tried later";
    }
    return result.excludedBy ? "Excluded" : "No match";
}

}

std::string WhySentence(const Activity& activity, const RuleTrial& rules, Titles titles)
{
    const auto subject = RuledSubject(activity);
    const auto* first = rules.First(FoldedText(subject), FoldedText(activity.people));
    const auto given = first == nullptr ? std::string(NoProject) : first->name;
    const auto& project = ProjectNameOf(activity);
    const bool isAsRuled = EqualIgnoringCase(given, project);
    if (isAsRuled && first == nullptr) {
        return activity.isProjectByHand ? "Set by hand; no rule matches it either."
                                        : "No rule of a project matches it.";
    }
    if (isAsRuled) {
        const auto words
            = TermWords(RuleTrial::TryOne(*first, FoldedText(subject), FoldedText(activity.people)), titles);
        return activity.isProjectByHand ? "Set by hand; " + words + " would give it, too." : "Given by " + words + ".";
    }
    const auto rest = first == nullptr ? "no rule matches it." : "the rules would give " + given + ".";
    return (activity.isProjectByHand ? "Set by hand; " : project + " is from before; now ") + rest;
}

std::vector<WhyLine> WhyLines(const Activity& activity, const RuleTrial& rules, Titles titles)
{
    constexpr auto InSubject = "in the subject";
    std::vector<WhyLine> lines;
    bool isGiven = false;
    for (const auto& result : rules.Try(RuledSubject(activity), activity.people)) {
        WhyLine line { .project = result.project->name,
            .precedence = PrecedenceText(result.project->precedence),
            .hit = "",
            .excluded = "",
            .outcome = OutcomeText(result, !isGiven) };
        if (result.term) {
            line.hit = PlaceWords(
                *result.term, result.rule == RuleTrial::Rule::People ? "among the people" : InSubject, titles);
        }
        if (result.excludedBy) {
            line.excluded = PlaceWords(*result.excludedBy, InSubject, titles);
        }
        isGiven |= result.matches;
        lines.push_back(std::move(line));
    }
    return lines;
}

}
