#pragma once

#include "review/Timesheet.h"

#include <string>
#include <vector>

namespace tempodial {

/// What a timesheet is called: its project and its days.
std::string TimesheetTitle(const Timesheet& sheet);
/// What people are shown of the texts of a day: three, and a sign that there are more.
std::vector<std::string> ShownTexts(const Timesheet::Day& day);

/// A timesheet as a page (HTML) for a client: it needs nothing from elsewhere, runs nothing, and can be printed. The
/// author and the currency may be empty.
std::string TimesheetPage(const Timesheet& sheet, const std::string& author, const std::string& currency);

}
