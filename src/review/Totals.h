#pragma once

#include "review/Activity.h"
#include "review/Period.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// What the rows of a table of times stand for.
enum class RowKind { Project, Application, Description };

/// A table of times: how many minutes each project, application or description took in each column of days. An activity
/// counts whole, on the day on which it starts.
struct Totals
{
    struct Row
    {
        std::string name;
        /// One for each column.
        std::vector<std::int64_t> minutes;
        std::int64_t total = 0;
    };

    /// Those with time, by size and then by name; "No Project" comes last.
    std::vector<Row> rows;
    /// The sums of the columns.
    std::vector<std::int64_t> minutes;
    std::int64_t total = 0;

    /// Sums up activities; those outside of the columns count in the totals alone.
    static Totals Of(const ActivityStream& activities, RowKind kind, const std::vector<Period>& columns);
};

}
