#pragma once

#include "portable/XmlParser.h"

#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// A column of a table view.
struct TableColumn
{
    enum class Alignment { Left, Centre, Right };

    /// The name of the field that it shows.
    std::string field;
    std::string heading;
    /// Pixels.
    int width = 0;
    Alignment alignment = Alignment::Left;
};

/// A field by which a table view is grouped or ordered.
struct TableOrder
{
    std::string field;
    bool isDescending = false;
};

/// What the definition of a table view says of its columns, groups and order; fonts and colours are left to the theme.
struct TableViewLayout
{
    std::vector<TableColumn> columns;
    std::vector<TableOrder> groups;
    std::vector<TableOrder> orders;

    /// Reads a definition; nothing when it isn't one of a table, or has no column to show.
    static std::optional<TableViewLayout> Read(const std::string& xml, XmlParser& parser);
};

}
