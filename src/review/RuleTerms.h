#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// The terms of a rule for subjects, one by one: they can be added and taken away, whatever separates them.
class RuleTerms
{
public:
    /// Reads a rule.
    explicit RuleTerms(const std::string& rule);

    /// True when a term is one of them, whatever the case of its letters.
    bool Has(std::string_view term) const;
    /// Adds a term unless it is one of them; one that holds a separator is put in quotes. False when no rule can hold
    /// it as one term beside the others.
    bool Add(std::string_view term);
    /// Takes a term away; false when it isn't one of them.
    bool Remove(std::string_view term);
    /// The rule, read as these terms; it keeps its separator.
    std::string Rule() const;

private:
    /// The rule with these terms; nothing when it would be read as others.
    std::optional<std::string> Joined(const std::vector<std::string>& terms) const;

    std::vector<std::string> mTerms;
    char mSeparator;
    std::string mRule;
};

}
