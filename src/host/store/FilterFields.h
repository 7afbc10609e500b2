#pragma once

#include "host/store/ItemData.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// A property that a filter or an order can name.
struct FilterField
{
    enum class Type { Text, Date, Boolean, Number };

    Type type = Type::Text;
    /// The value as an expression of SQL over a row of the items.
    std::string sql;
    /// A text to be bound for the expression; nothing when it takes none.
    std::optional<std::string> bound;
};

/// Finds the properties that a folder's filters can name: the standard ones, and the user properties it knows.
class FilterFields
{
public:
    /// The start and the end of an item as expressions of SQL, in seconds since 1899-12-30.
    static constexpr std::string_view StartSql = "item.starts";
    static constexpr std::string_view EndSql = "item.ends";

    explicit FilterFields(std::vector<ItemProperty> folderFields);

    /// The property of that name, case ignored; fails (5) for one that the folder doesn't know.
    FilterField Field(const std::string& name) const;

private:
    std::vector<ItemProperty> mFolderFields;
};

}
