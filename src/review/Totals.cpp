#include "review/Totals.h"

#include "session/ProductFacts.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <iterator>
#include <string_view>
#include <tuple>
#include <unordered_map>

namespace tempodial {

namespace {

std::string_view NameIn(const Activity& activity, RowKind kind)
{
    if (kind == RowKind::Project) {
        return ProjectNameOf(activity);
    }
    return kind == RowKind::Application ? activity.type : activity.description;
}

/// The index of the column that has a day, as many as there are for none.
std::size_t ColumnOf(Date moment, const std::vector<Period>& columns)
{
    const auto behind = std::upper_bound(columns.begin(), columns.end(), moment,
        [](Date searched, const Period& column) { return searched < column.first; });
    const bool isIn = behind != columns.begin() && moment < std::prev(behind)->last.AddDays(1);
    return static_cast<std::size_t>(isIn ? std::prev(behind) - columns.begin() : columns.end() - columns.begin());
}

}

Totals Totals::Of(const ActivityStream& activities, RowKind kind, const std::vector<Period>& columns)
{
    Totals totals;
    totals.minutes.resize(columns.size());
    // The names are those of the rows, which stay where they are.
    std::deque<Row> rows;
    std::unordered_map<std::string_view, Row*> rowsByName;
    activities([&](const Activity& activity) {
        if (activity.duration == 0) {
            return;
        }
        const auto name = NameIn(activity, kind);
        auto known = rowsByName.find(name);
        if (known == rowsByName.end()) {
            rows.push_back({ std::string(name), std::vector<std::int64_t>(columns.size()) });
            known = rowsByName.emplace(rows.back().name, &rows.back()).first;
        }
        auto& row = *known->second;
        row.total += activity.duration;
        totals.total += activity.duration;
        if (const auto column = ColumnOf(activity.start, columns); column < columns.size()) {
            row.minutes[column] += activity.duration;
            totals.minutes[column] += activity.duration;
        }
    });
    totals.rows.assign(std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
    const auto rank = [kind](const Row& row) {
        return std::tuple(kind == RowKind::Project && row.name == NoProject, -row.total, std::string_view(row.name));
    };
    std::sort(totals.rows.begin(), totals.rows.end(),
        [&rank](const Row& one, const Row& other) { return rank(one) < rank(other); });
    return totals;
}

}
