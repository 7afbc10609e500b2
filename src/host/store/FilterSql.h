#pragma once

#include "base/Ref.h"
#include "host/store/FilterFields.h"
#include "host/store/FilterParser.h"
#include "platform/system/LocaleFormats.h"

#include <cstdint>
#include <limits>
#include <string>
#include <variant>
#include <vector>

namespace tempodial {

/// A stretch of seconds since 1899-12-30, its end left out.
struct SecondsRange
{
    // Far beyond all dates, with room for sums.
    static constexpr std::int64_t Unbounded = std::numeric_limits<std::int64_t>::max() / 4;

    std::int64_t from = -Unbounded;
    std::int64_t until = Unbounded;

    bool IsBoundedBelow() const { return from != -Unbounded; }
    bool IsBoundedAbove() const { return until != Unbounded; }
};

/// A filter as a condition of SQL, with the values to be bound from left to right.
struct FilterCondition
{
    std::string sql;
    std::vector<std::variant<std::int64_t, std::string>> values;
    /// Between which moments the start and the end of every item lie that the filter lets through.
    SecondsRange start;
    SecondsRange end;
};

/// Turns filters into SQL. Moments compare at minute grain with values cut to the minute; texts ignore case; a user
/// property that an item lacks or that was never set counts as the empty text, as no, and as no date at all.
class FilterSql
{
public:
    FilterSql(FilterFields fields, Ref<LocaleFormats> formats);

    /// The condition; fails (5) for an unknown property, (13) for a value that doesn't fit the property's type.
    FilterCondition Condition(const FilterNode& filter) const;

private:
    /// `required` is true for a part without which the whole filter lets nothing through.
    void Append(const FilterNode& node, bool required, FilterCondition& condition) const;
    void AppendComparison(const FilterNode& node, bool required, FilterCondition& condition) const;
    void AppendDate(const FilterField& field, const FilterNode& node, bool required, FilterCondition& condition) const;

    FilterFields mFields;
    Ref<LocaleFormats> mFormats;
};

}
