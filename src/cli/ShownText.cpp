#include "cli/ShownText.h"

#include "terminal/TerminalText.h"

#include <utility>

namespace tempodial {

ShownText& ShownText::operator+=(const std::string& text)
{
    if (auto* last = mPieces.empty() ? nullptr : std::get_if<std::string>(&mPieces.back())) {
        *last += text;
    } else if (!text.empty()) {
        mPieces.emplace_back(text);
    }
    return *this;
}

ShownText& ShownText::operator+=(TextTable table)
{
    mPieces.emplace_back(std::move(table));
    return *this;
}

void ShownText::AddHeading(const std::string& text)
{
    mPieces.emplace_back(Heading { text });
}

std::string ShownText::Text(const TextLayout& layout) const
{
    std::string text;
    for (const auto& piece : mPieces) {
        text += std::visit([&layout](const auto& kind) { return PieceText(kind, layout); }, piece);
    }
    return text;
}

std::string ShownText::PieceText(const std::string& text, const TextLayout&)
{
    return Harmless(text);
}

std::string ShownText::PieceText(const Heading& heading, const TextLayout& layout)
{
    const auto line = HarmlessLine(heading.text);
    return (layout.hasColors ? TextStyle::Heading().Drawn(line) : line) + "\n";
}

std::string ShownText::PieceText(const TextTable& table, const TextLayout& layout)
{
    return table.Text(layout);
}

}
