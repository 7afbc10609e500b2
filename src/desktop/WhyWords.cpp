#include "desktop/WhyWords.h"

#include "base/Text.h"
#include "session/ProductFacts.h"

namespace tempodial {

namespace {

/// The term by which a project's rules hit, in words.
std::string TermWords(const RuleTrial::Result& result)
{
    const auto* where = result.rule == RuleTrial::Rule::People ? "people" : "subject";
    return "the " + std::string(where) + " rule \"" + result.term.value_or("") + "\" of " + result.project->name;
}

}

std::string WhySentence(const Activity& activity, const RuleTrial& rules)
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
        const auto words = TermWords(RuleTrial::TryOne(*first, FoldedText(subject), FoldedText(activity.people)));
        return activity.isProjectByHand ? "Set by hand; " + words + " would give it, too." : "Given by " + words + ".";
    }
    const auto rest = first == nullptr ? "no rule matches it." : "the rules would give " + given + ".";
    return (activity.isProjectByHand ? "Set by hand; " : project + " is from before; now ") + rest;
}

}
