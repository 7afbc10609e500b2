#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace tempodial {

/// Finds many texts in others, whatever the case of the letters.
class TextSweep
{
public:
    /// Adds a text, if it isn't empty.
    void Add(std::string_view text);
    /// True when any of the texts stands there, as it is or in XML.
    bool Finds(std::string_view text) const;
    /// All texts, with their case folded, in no order.
    std::vector<std::string> Texts() const { return { mTexts.begin(), mTexts.end() }; }

private:
    bool FindsFolded(const std::string& folded) const;

    std::unordered_set<std::string> mTexts;
    /// Those of less than three bytes.
    std::vector<std::string> mShort;
    /// The others, by their first three bytes.
    std::unordered_map<std::uint32_t, std::vector<std::string>> mLong;
};

}
