#pragma once

#include <cstdint>
#include <string>

namespace tempodial {

/// Classes of items by length. An item of a class is shorter than the class's reach, so what overlaps a moment began
/// within that reach before it: an overlap is found by one narrow search a class, however long the longest item is.
class ItemSpan
{
public:
    /// The class of a length in seconds.
    static std::int64_t ClassOf(std::int64_t length);
    /// The class of a length in seconds, as an expression of SQL over that length.
    static std::string ClassSql(const std::string& length);
    /// All classes with their reaches in seconds, as the rows of a VALUES clause.
    static std::string ClassRows();
};

}
