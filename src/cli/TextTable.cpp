#include "cli/TextTable.h"

#include "terminal/TerminalText.h"

#include <algorithm>

namespace tempodial {

void TextTable::Add(const std::vector<std::string>& cells)
{
    auto& row = mRows.emplace_back(mColumns.size());
    std::transform(cells.begin(), cells.end(), row.begin(), IsolatedLine);
}

std::string TextTable::Text() const
{
    std::vector<int> widths(mColumns.size());
    for (const auto& row : mRows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], DisplayWidth(row[i]));
        }
    }
    std::string text;
    for (const auto& row : mRows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string filling(static_cast<std::size_t>(widths[i] - DisplayWidth(row[i])), ' ');
            line += i == 0 ? "" : "  ";
            line += mColumns[i] == Side::Left ? row[i] + filling : filling + row[i];
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

}
