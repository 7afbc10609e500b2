#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tempodial {

/// What a text is compared with, whatever the case: words with "*" and "?" as in the names of files, or a regular
/// expression between slashes, which may hit anywhere.
class TextPattern
{
public:
    /// Fails with `std::invalid_argument`, whose text says why, when an expression can't be read.
    explicit TextPattern(std::string_view pattern);

    bool Matches(std::string_view text) const;
    /// The same for a text of which the folded form is known already.
    bool Matches(std::string_view text, std::string_view folded) const;

private:
    struct Expression;

    static bool MatchesWords(std::string_view text, std::string_view words);

    /// The words with their case folded, when there is no expression.
    std::string mWords;
    std::shared_ptr<const Expression> mExpression;
};

}
