#include "review/Totals.h"

#include "session/ProductFacts.h"

#include <algorithm>
#include <cstddef>
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

Totals Totals::Of(const std::vector<Activity>& activities, RowKind kind, const std::vector<Period>& columns)
{
    Totals totals;
    totals.minutes.resize(columns.size());
    std::unordered_map<std::string_view, std::size_t> places;
    for (const auto& activity : activities) {
        if (activity.duration == 0) {
            continue;
        }
        const auto [place, isNew] = places.emplace(NameIn(activity, kind), totals.rows.size());
        if (isNew) {
            totals.rows.push_back({ std::string(place->first), std::vector<std::int64_t>(columns.size()) });
        }
        auto& row = totals.rows[place->second];
        row.total += activity.duration;
        totals.total += activity.duration;
        if (const auto column = ColumnOf(activity.start, columns); column < columns.size()) {
            row.minutes[column] += activity.duration;
            totals.minutes[column] += activity.duration;
        }
    }
    const auto rank = [kind](const Row& row) {
        return std::tuple(kind == RowKind::Project && row.name == NoProject, -row.total, std::string_view(row.name));
    };
    std::sort(totals.rows.begin(), totals.rows.end(),
        [&rank](const Row& one, const Row& other) { return rank(one) < rank(other); });
    return totals;
}

}
