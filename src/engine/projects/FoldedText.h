#pragma once

#include <bitset>
#include <cstddef>
#include <string>
#include <string_view>

namespace tempodial {

/// A text made ready for many searches that ignore case: its case is folded, and the pairs of letters in it are noted,
/// so that nearly all of the words that don't occur in it are ruled out at a glance.
class FoldedText
{
public:
    explicit FoldedText(std::string_view text);

    bool IsEmpty() const { return mText.empty(); }
    /// True when a text whose case is folded occurs; the empty one occurs in every text but the empty one.
    bool Contains(std::string_view folded) const
    {
        for (std::size_t index = 1; index < folded.size(); ++index) {
            if (!mPairs[Pair(folded[index - 1], folded[index])]) {
                return false;
            }
        }
        return !mText.empty() && mText.find(folded) != std::string::npos;
    }

private:
    /// A place for each pair of letters; other characters share them.
    static std::size_t Pair(char first, char second) { return ((first & 31U) << 5U) | (second & 31U); }

    std::string mText;
    std::bitset<1024> mPairs;
};

}
