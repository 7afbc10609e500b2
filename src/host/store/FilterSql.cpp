#include "host/store/FilterSql.h"

#include "base/Number.h"
#include "base/Text.h"
#include "base/Variant.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

constexpr std::int64_t MinuteSeconds = 60;

std::string_view Sign(FilterOperator comparison)
{
    switch (comparison) {
    case FilterOperator::Equal:
        return " = ";
    case FilterOperator::NotEqual:
        return " <> ";
    case FilterOperator::Less:
        return " < ";
    case FilterOperator::LessOrEqual:
        return " <= ";
    case FilterOperator::Greater:
        return " > ";
    case FilterOperator::GreaterOrEqual:
        break;
    }
    return " >= ";
}

/// The seconds that a comparison with a minute lets through; the one for "not equal" is that of "equal".
SecondsRange RangeOf(FilterOperator comparison, std::int64_t minute)
{
    SecondsRange range;
    switch (comparison) {
    case FilterOperator::Equal:
    case FilterOperator::NotEqual:
        range.from = minute;
        range.until = minute + MinuteSeconds;
        break;
    case FilterOperator::Less:
        range.until = minute;
        break;
    case FilterOperator::LessOrEqual:
        range.until = minute + MinuteSeconds;
        break;
    case FilterOperator::Greater:
        range.from = minute + MinuteSeconds;
        break;
    case FilterOperator::GreaterOrEqual:
        range.from = minute;
        break;
    }
    return range;
}

}

FilterSql::FilterSql(FilterFields fields, Ref<LocaleFormats> formats)
    : mFields(std::move(fields))
    , mFormats(std::move(formats))
{
}

FilterCondition FilterSql::Condition(const FilterNode& filter) const
{
    FilterCondition condition;
    Append(filter, true, condition);
    return condition;
}

void FilterSql::Append(const FilterNode& node, bool required, FilterCondition& condition) const
{
    switch (node.kind) {
    case FilterNode::Kind::Comparison:
        AppendComparison(node, required, condition);
        break;
    case FilterNode::Kind::Not:
        condition.sql += "NOT (";
        Append(node.parts.front(), false, condition);
        condition.sql += ")";
        break;
    case FilterNode::Kind::And:
    case FilterNode::Kind::Or:
        std::string_view separator = "(";
        for (const auto& part : node.parts) {
            condition.sql += separator;
            Append(part, required && node.kind == FilterNode::Kind::And, condition);
            separator = node.kind == FilterNode::Kind::And ? " AND " : " OR ";
        }
        condition.sql += ")";
        break;
    }
}

void FilterSql::AppendComparison(const FilterNode& node, bool required, FilterCondition& condition) const
{
    const auto field = mFields.Field(node.property);
    if (field.type == FilterField::Type::Date) {
        AppendDate(field, node, required, condition);
        return;
    }
    if (field.bound) {
        condition.values.emplace_back(*field.bound);
    }
    switch (field.type) {
    case FilterField::Type::Text:
        condition.sql += "fold_text(ifnull(" + field.sql + ", ''))";
        condition.values.emplace_back(Fold(node.value));
        break;
    case FilterField::Type::Boolean:
        condition.sql += "ifnull(" + field.sql + ", 0)";
        condition.values.emplace_back(std::int64_t { Variant(node.value).ToBoolean() });
        break;
    case FilterField::Type::Number:
    case FilterField::Type::Date:
        condition.sql += field.sql;
        condition.values.emplace_back(std::int64_t { ToInt32(node.value) });
        break;
    }
    condition.sql += std::string(Sign(node.comparison)) + "?";
}

void FilterSql::AppendDate(
    const FilterField& field, const FilterNode& node, bool required, FilterCondition& condition) const
{
    const auto range = RangeOf(node.comparison, mFormats->Parse(node.value).Minute().Seconds());
    std::string sql;
    const auto appendBound = [&](std::string_view sign, std::int64_t bound) {
        if (field.bound) {
            condition.values.emplace_back(*field.bound);
        }
        condition.values.emplace_back(bound);
        sql += (sql.empty() ? "" : " AND ") + field.sql + std::string(sign) + "?";
    };
    if (range.IsBoundedBelow()) {
        appendBound(" >= ", range.from);
    }
    if (range.IsBoundedAbove()) {
        appendBound(" < ", range.until);
    }
    if (field.bound) {
        sql = "ifnull(" + sql + ", 0)";
    } else if (required && node.comparison != FilterOperator::NotEqual) {
        auto& narrowed = field.sql == FilterFields::StartSql ? condition.start : condition.end;
        narrowed.from = std::max(narrowed.from, range.from);
        narrowed.until = std::min(narrowed.until, range.until);
    }
    condition.sql += (node.comparison == FilterOperator::NotEqual ? "NOT (" : "(") + sql + ")";
}

}
