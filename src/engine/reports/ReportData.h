#pragma once

#include "engine/reports/ReportDetails.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// What a report tells of the activities that have one value of the grouping attribute in common.
struct ReportGroup
{
    /// The value in common, empty for activities without one.
    std::string name;
    /// Minutes of all its activities.
    std::int32_t minutes = 0;
    /// A line for each activity, empty unless the report is detailed.
    ReportDetails::List details;
};

/// What was gathered for a report.
struct ReportData
{
    /// The groups in the order of their first activities. The first element is there from the start, for activities
    /// without a value.
    std::vector<ReportGroup> groups = std::vector<ReportGroup>(1);
    /// The texts of the groups' details.
    ReportDetails details;
    /// Minutes of all activities.
    std::int32_t totalTime = 0;
};

}
