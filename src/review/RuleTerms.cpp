#include "review/RuleTerms.h"

#include "base/Text.h"
#include "engine/projects/ProjectRule.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr std::string_view Separators = ",;";

std::vector<std::string> TermsOf(const std::string& rule)
{
    std::vector<std::string> terms;
    const auto read = ProjectRule::ForSubjects(rule);
    for (const auto& term : read.MatchTerms()) {
        terms.push_back(term.text);
    }
    return terms;
}

/// A term as it stands in a rule: in quotes when it holds a separator and has none yet.
std::string Quoted(std::string_view term)
{
    auto text = Trim(term);
    const bool isPlain = text.find_first_of(Separators) == std::string::npos;
    return isPlain || text.front() == '"' ? text : "\"" + text + "\"";
}

}

RuleTerms::RuleTerms(const std::string& rule)
    : mTerms(TermsOf(rule))
    , mSeparator(ProjectRule::IsSemiColonSeparator(rule) ? ';' : ',')
    , mRule(rule)
{
}

bool RuleTerms::Has(std::string_view term) const
{
    return std::any_of(mTerms.begin(), mTerms.end(),
        [text = Quoted(term)](const auto& known) { return EqualIgnoringCase(known, text); });
}

bool RuleTerms::Add(std::string_view term)
{
    if (Has(term)) {
        return true;
    }
    auto terms = mTerms;
    terms.push_back(Quoted(term));
    const auto rule = Joined(terms);
    if (!rule || terms.back().empty()) {
        return false;
    }
    mTerms = std::move(terms);
    mRule = *rule;
    return true;
}

bool RuleTerms::Remove(std::string_view term)
{
    auto terms = mTerms;
    terms.erase(std::remove_if(terms.begin(), terms.end(),
                    [text = Quoted(term)](const auto& known) { return EqualIgnoringCase(known, text); }),
        terms.end());
    const auto rule = Joined(terms);
    if (terms.size() == mTerms.size() || !rule) {
        return false;
    }
    mTerms = std::move(terms);
    mRule = *rule;
    return true;
}

std::string RuleTerms::Rule() const
{
    return mRule;
}

std::optional<std::string> RuleTerms::Joined(const std::vector<std::string>& terms) const
{
    std::string rule;
    for (const auto& term : terms) {
        rule += (rule.empty() ? "" : std::string { mSeparator, ' ' }) + term;
    }
    // A separator at the end says which one it is where the terms don't.
    for (const auto& text : { rule, rule + mSeparator }) {
        if (TermsOf(text) == terms) {
            return text;
        }
    }
    return std::nullopt;
}

}
