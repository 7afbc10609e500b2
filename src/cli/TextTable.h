#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// A table for people: columns as wide as their widest cell, two blanks between them, none at the end of a line.
class TextTable
{
public:
    /// Which side of its column a cell stands on.
    enum class Side { Left, Right };

    explicit TextTable(std::vector<Side> columns)
        : mColumns(std::move(columns))
    {
    }

    /// Adds a row; each cell is brought into a harmless line that doesn't turn the others.
    void Add(const std::vector<std::string>& cells);
    /// The rows, each with a line feed behind it.
    std::string Text() const;

private:
    std::vector<Side> mColumns;
    std::vector<std::vector<std::string>> mRows;
};

}
