#include "review/PeriodColumns.h"

#include <algorithm>

namespace tempodial {

std::vector<Period> ColumnsOf(const Period& days, ColumnSize size, const Period::WeekStart& weekStart)
{
    std::vector<Period> columns;
    if (size == ColumnSize::None) {
        return columns;
    }
    const auto lastOf = [&](Date day) {
        if (size == ColumnSize::Day) {
            return day;
        }
        return size == ColumnSize::Week ? Period::WeekOf(day, weekStart).last : Period::MonthOf(day).last;
    };
    for (auto day = days.first; day <= days.last;) {
        const auto last = std::min(lastOf(day), days.last);
        columns.push_back({ day, last });
        day = last.AddDays(1);
    }
    return columns;
}

}
