#pragma once

#include "engine/projects/FoldedText.h"

#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// One rule of a project: the text as typed, the terms cut from it, and the terms made ready for matching.
class ProjectRule
{
public:
    /// A term without its quotes and outer blanks, with its case folded.
    struct Term
    {
        /// As typed, without outer blanks.
        std::string text;
        /// What has to occur in a text: one phrase of a quoted term, else the words between blanks.
        std::vector<std::string> parts;
        bool quoted = false;
        /// A single double quote and nothing else.
        bool loneQuote = false;

        /// True when all that has to occur does so; a text that is empty holds nothing.
        bool IsIn(const FoldedText& searched) const
        {
            for (const auto& part : parts) {
                if (!searched.Contains(part)) {
                    return false;
                }
            }
            return true;
        }
    };

    /// A rule without terms.
    ProjectRule() = default;
    /// A rule for subjects: the separator is found in the text, and quoted phrases that it cuts in two are joined
    /// again.
    static ProjectRule ForSubjects(std::string text);
    /// A rule for people: terms stand between semicolons, whatever the quotes.
    static ProjectRule ForPeople(std::string text);
    /// True when a text's terms stand between semicolons: outside quotes it has a semicolon and no comma.
    static bool IsSemiColonSeparator(std::string_view text);

    /// The text as typed.
    const std::string& Text() const { return mText; }
    /// The terms as cut, with their blanks and quotes.
    const std::vector<std::string>& Terms() const { return mTerms; }
    /// The terms that can match, in their order; empty ones are left out.
    const std::vector<Term>& MatchTerms() const { return mMatchTerms; }
    /// The first term that is in a text; null when none is.
    const Term* TermIn(const FoldedText& searched) const;
    /// True when a term equals the text exactly.
    bool HasTerm(std::string_view text) const;

private:
    ProjectRule(std::string text, std::vector<std::string> terms);

    std::string mText;
    std::vector<std::string> mTerms;
    std::vector<Term> mMatchTerms;
};

}
