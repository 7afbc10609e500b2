#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// How a filter compares a property with a value.
enum class FilterOperator { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual };

/// A part of a filter: a comparison, or a connection of other parts.
struct FilterNode
{
    enum class Kind { Comparison, And, Or, Not };

    Kind kind = Kind::Comparison;
    std::vector<FilterNode> parts;
    std::string property;
    FilterOperator comparison = FilterOperator::Equal;
    /// The value as it stands in the filter, quotes taken off.
    std::string value;
};

/// Reads filters: comparisons `[Name] op value` joined by and, or, not and parentheses; a value is a text in double or
/// single quotes, in which a doubled quote is a quote, a number, True or False.
class FilterParser
{
public:
    /// The filter as a tree; fails (5) for a text that is no filter, or one beyond 200 comparisons or 50 levels.
    static FilterNode Parse(std::string_view filter);
    /// The name in a text that is a name in square brackets, blanks around it allowed; fails (5) for another text.
    static std::string PropertyName(std::string_view text);
};

}
