#pragma once

#include "cli/TextLayout.h"
#include "cli/TextStyle.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// A table for people: columns as wide as their widest cell, two blanks between them, none at the end of a line. Where
/// there isn't room for that, the widest columns of texts give way, and what is cut ends in "…"; a number is left out
/// whole.
class TextTable
{
public:
    /// Which side of its column a cell stands on.
    enum class Side { Left, Right };

    struct Cell
    {
        std::string text;
        TextStyle style;
    };

    explicit TextTable(std::vector<Side> columns)
        : mColumns(std::move(columns))
    {
    }

    /// Adds a row; each cell is brought into a harmless line that doesn't turn the others.
    void Add(const std::vector<std::string>& cells, const TextStyle& style = {});
    void AddHeading(const std::vector<std::string>& cells) { Add(cells, TextStyle::Heading()); }
    void AddStyled(const std::vector<Cell>& cells);
    /// The rows, each with a line feed behind it.
    std::string Text(const TextLayout& layout = {}) const;

private:
    using Row = std::vector<Cell>;

    std::vector<int> Widths(std::optional<int> limit) const;
    std::string Line(const Row& row, const std::vector<int>& widths, std::optional<int> limit, bool hasColors) const;

    std::vector<Side> mColumns;
    std::vector<Row> mRows;
};

}
