#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// What a line of a tracker's file says, as far as it can be made out: a line needn't be whole for that.
struct SlotTexts
{
    /// Seconds of the day.
    std::int64_t start = 0;
    std::int64_t end = 0;
    /// The project that the tracker knew, empty for none.
    std::string project;
    /// All other texts but the names of programs.
    std::vector<std::string> texts;

    static SlotTexts Of(std::string_view line);
    /// A text of XML as it is meant.
    static std::string Unescaped(std::string_view text);
    /// True when a text, its case folded, stands in the line, as it is written there or as it is meant.
    static bool Holds(const std::string& line, const std::string& foldedText);
};

}
