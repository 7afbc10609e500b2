#include "support/ClockifyReport.h"

#include "base/Text.h"

#include <cstdio>
#include <map>
#include <utility>

namespace tempodial {

const std::vector<std::vector<std::string>>& ClockifyForms()
{
    static const std::vector<std::vector<std::string>> Forms {
        { "Project", "Client", "Description", "Task", "User", "Group", "Email", "Tags", "Billable", "Start Date",
            "Start Time", "End Date", "End Time", "Duration (h)", "Duration (decimal)", "Billable Rate (USD)",
            "Billable Amount (USD)" },
        { "Project", "Description", "Task", "User", "Email", "Tags", "Billable", "Start Date", "Start Time", "End Date",
            "End Time", "Duration (h)", "Duration (decimal)" },
        { "Project", "Client", "Description", "Task", "User", "Group", "Email", "Tags", "Type", "Billable", "Invoiced",
            "Invoice ID", "Start Date", "Start Time", "End Date", "End Time", "Duration (h)", "Date of creation" },
        { "Project", "Client", "Description", "Activity", "User", "Start Date", "Start Time", "End Date", "End Time" },
        { "Description", "Project", "Start Date", "Start Time", "Duration (h)" },
        { "START DATE", "START TIME", "END DATE", "END TIME", "DURATION (H)", "project", "description", "task" },
        { "Tags", "Project", "Client", "Description", "Task", "Start Date", "Start Time", "End Date", "End Time",
            "Duration (h)", "Invoiced" },
    };
    return Forms;
}

ClockifyReport::ClockifyReport(std::vector<std::string> columns, bool isMonthFirst, bool hasTwelveHours)
    : mColumns(std::move(columns))
    , mIsMonthFirst(isMonthFirst)
    , mHasTwelveHours(hasTwelveHours)
{
}

std::string ClockifyReport::Text() const
{
    std::string text = "\xef\xbb\xbf";
    for (const auto& column : mColumns) {
        text += "\"" + column + "\",";
    }
    text.back() = '\n';
    AddRow(text, "Riverside", "call", { 2006, 9, 2, 9, 0, 0 }, { 2006, 9, 2, 10, 30, 0 });
    AddRow(text, "Riverside", "plan", { 2006, 9, 13, 13, 5, 20 }, { 2006, 9, 13, 13, 36, 0 });
    AddRow(text, "Atlas", "night", { 2006, 9, 14, 23, 30, 0 }, { 2006, 9, 15, 0, 20, 0 });
    return text;
}

std::string ClockifyReport::Day(const Date::Parts& at) const
{
    const auto month = std::to_string(at.month);
    const auto day = std::string(at.day < 10 ? "0" : "") + std::to_string(at.day);
    return (mIsMonthFirst ? month + "/" + day : day + "/" + month) + "/" + std::to_string(at.year);
}

std::string ClockifyReport::Time(const Date::Parts& at) const
{
    const auto hour = mHasTwelveHours ? (at.hour + 11) % 12 + 1 : at.hour;
    char text[32];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", hour, at.minute, at.second);
    return text + std::string(!mHasTwelveHours ? "" : at.hour < 12 ? " AM" : " PM");
}

void ClockifyReport::AddRow(std::string& text, const std::string& project, const std::string& words,
    const Date::Parts& from, const Date::Parts& to) const
{
    const auto seconds = SecondsBetween(Date::FromParts(from), Date::FromParts(to));
    char length[32];
    std::snprintf(length, sizeof length, "%02d:%02d:%02d", static_cast<int>(seconds / 3600),
        static_cast<int>(seconds / 60 % 60), static_cast<int>(seconds % 60));
    const std::map<std::string, std::string> cells { { "project", project }, { "description", words },
        { "start date", Day(from) }, { "start time", Time(from) }, { "end date", Day(to) }, { "end time", Time(to) },
        { "duration (h)", length }, { "user", "Ann" }, { "billable", "Yes" } };
    for (const auto& column : mColumns) {
        const auto cell = cells.find(Fold(column));
        text += "\"" + (cell == cells.end() ? "" : cell->second) + "\",";
    }
    text.back() = '\n';
}

}
