#include "engine/projects/ProjectRule.h"

#include "base/Text.h"

#include <algorithm>
#include <optional>

namespace tempodial {

namespace {

void JoinCutPhrases(std::vector<std::string>& terms, std::string_view separator)
{
    std::optional<std::size_t> open;
    for (std::size_t index = 0; index < terms.size(); ++index) {
        const auto term = Trim(terms[index]);
        if (term.find('"') == std::string::npos) {
            continue;
        }
        if (term.front() == '"' && term.back() != '"') {
            open = index;
        } else if (term.front() != '"' && term.back() == '"' && open) {
            // kept: terms between the two pieces stay terms of their own
            terms[*open] += std::string(separator) + terms[index];
            terms[index].clear();
            open.reset();
        }
    }
}

ProjectRule::Term Prepared(std::string_view trimmed)
{
    ProjectRule::Term term;
    term.text = trimmed;
    term.quoted = trimmed.front() == '"' || trimmed.back() == '"';
    term.loneQuote = trimmed == "\"";
    if (term.quoted) {
        if (trimmed.front() == '"') {
            trimmed.remove_prefix(1);
        }
        if (!trimmed.empty() && trimmed.back() == '"') {
            trimmed.remove_suffix(1);
        }
        term.parts.push_back(Fold(trimmed));
    } else {
        term.parts = Split(Fold(trimmed), " ");
    }
    return term;
}

}

ProjectRule::ProjectRule(std::string text, std::vector<std::string> terms)
    : mText(std::move(text))
    , mTerms(std::move(terms))
{
    for (const auto& term : mTerms) {
        const auto trimmed = Trim(term);
        if (!trimmed.empty()) {
            mMatchTerms.push_back(Prepared(trimmed));
        }
    }
}

ProjectRule ProjectRule::ForSubjects(std::string text)
{
    const std::string_view separator = IsSemiColonSeparator(text) ? ";" : ",";
    auto terms = Split(text, separator);
    JoinCutPhrases(terms, separator);
    return { std::move(text), std::move(terms) };
}

ProjectRule ProjectRule::ForPeople(std::string text)
{
    auto terms = Split(text, ";");
    return { std::move(text), std::move(terms) };
}

bool ProjectRule::IsSemiColonSeparator(std::string_view text)
{
    bool comma = false;
    bool semicolon = false;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == '"') {
            const auto closing = text.find('"', index + 1);
            if (closing != std::string_view::npos) {
                index = closing;
            }
        }
        comma |= text[index] == ',';
        semicolon |= text[index] == ';';
    }
    return semicolon && !comma;
}

const ProjectRule::Term* ProjectRule::TermIn(const FoldedText& searched) const
{
    const auto found = std::find_if(
        mMatchTerms.begin(), mMatchTerms.end(), [&searched](const Term& term) { return term.IsIn(searched); });
    return found == mMatchTerms.end() ? nullptr : &*found;
}

bool ProjectRule::HasTerm(std::string_view text) const
{
    return std::find(mTerms.begin(), mTerms.end(), text) != mTerms.end();
}

}
