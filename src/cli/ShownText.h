#pragma once

#include "cli/TextLayout.h"
#include "cli/TextStyle.h"
#include "cli/TextTable.h"

#include <string>
#include <variant>
#include <vector>

namespace tempodial {

/// A text for people, of lines that each end in a line feed, and tables, which is laid out when it is shown.
class ShownText
{
public:
    ShownText() = default;
    ShownText(const std::string& text) { *this += text; }
    ShownText(const char* text)
        : ShownText(std::string(text))
    {
    }
    ShownText(TextTable table) { *this += std::move(table); }

    ShownText& operator+=(const std::string& text);
    ShownText& operator+=(TextTable table);
    /// Adds a line that stands out.
    void AddHeading(const std::string& text);

    bool IsEmpty() const { return mPieces.empty(); }
    /// All of it, harmless for a terminal.
    std::string Text(const TextLayout& layout = {}) const;

private:
    struct Heading
    {
        std::string text;
    };

    static std::string PieceText(const std::string& text, const TextLayout& layout);
    static std::string PieceText(const Heading& heading, const TextLayout& layout);
    static std::string PieceText(const TextTable& table, const TextLayout& layout);

    std::vector<std::variant<std::string, Heading, TextTable>> mPieces;
};

}
