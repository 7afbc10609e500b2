#include "cli/TextTable.h"

#include "terminal/TerminalText.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace tempodial {

namespace {

/// Blanks between two columns.
constexpr int ColumnGap = 2;
/// A column of texts gives way down to this width.
constexpr int NarrowestText = 12;

/// Columns of the terminal that a line of columns of these widths takes.
int WholeWidth(const std::vector<int>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), ColumnGap * (static_cast<int>(widths.size()) - 1));
}

std::string WithoutLastBlanks(std::string text)
{
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

}

void TextTable::AddStyled(const std::vector<Cell>& cells)
{
    auto& row = mRows.emplace_back(mColumns.size());
    std::transform(cells.begin(), cells.end(), row.begin(), [](const auto& cell) {
        return Cell { IsolatedLine(cell.text), cell.style };
    });
}

void TextTable::Add(const std::vector<std::string>& cells, const TextStyle& style)
{
    std::vector<Cell> styled;
    for (const auto& text : cells) {
        styled.push_back({ text, style });
    }
    AddStyled(styled);
}

std::string TextTable::Text(const TextLayout& layout) const
{
    const auto widths = Widths(layout.width);
    // A line that is cut needs a column for the sign of that.
    const auto limit
        = layout.width && WholeWidth(widths) > *layout.width ? std::optional(*layout.width - 1) : std::nullopt;
    std::string text;
    for (const auto& row : mRows) {
        text += Line(row, widths, limit, layout.hasColors) + "\n";
    }
    return text;
}

std::vector<int> TextTable::Widths(std::optional<int> limit) const
{
    std::vector<int> widths(mColumns.size());
    for (const auto& row : mRows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], DisplayWidth(row[i].text));
        }
    }
    for (auto excess = limit ? WholeWidth(widths) - *limit : 0; excess > 0; --excess) {
        int* widest = nullptr;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            if (mColumns[i] == Side::Left && (!widest || widths[i] > *widest)) {
                widest = &widths[i];
            }
        }
        if (!widest || *widest <= NarrowestText) {
            break;
        }
        --*widest;
    }
    return widths;
}

std::string TextTable::Line(
    const Row& row, const std::vector<int>& widths, std::optional<int> limit, bool hasColors) const
{
    std::string line;
    int room = limit.value_or(std::numeric_limits<int>::max());
    int blanks = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
        auto text = DisplayWidth(row[i].text) > widths[i] ? Shortened(row[i].text, widths[i]) : row[i].text;
        text = WithoutLastBlanks(std::move(text));
        const auto width = DisplayWidth(text);
        const auto filling = widths[i] - width;
        blanks += (i == 0 ? 0 : ColumnGap) + (mColumns[i] == Side::Right ? filling : 0);
        if (!text.empty()) {
            const bool isCut = width > room - blanks;
            // A number that is cut would be another one.
            if (blanks > room || (isCut && mColumns[i] == Side::Right)) {
                return line + (room > 0 && !line.empty() ? " …" : "…");
            }
            if (isCut) {
                text = Shortened(text, room - blanks + 1);
            }
            line.append(static_cast<std::size_t>(blanks), ' ');
            line += hasColors ? row[i].style.Drawn(text) : text;
            if (isCut) {
                return line;
            }
            room -= blanks + width;
            blanks = 0;
        }
        blanks += mColumns[i] == Side::Left ? filling : 0;
    }
    return line;
}

}
