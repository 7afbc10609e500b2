#pragma once

#include "review/Period.h"

#include <vector>

namespace tempodial {

/// What the columns of a table of times stand for.
enum class ColumnSize { Day, Week, Month, None };

/// The days, weeks or months of a span, cut at its ends; none for `None`.
std::vector<Period> ColumnsOf(const Period& days, ColumnSize size, const Period::WeekStart& weekStart);

}
