#include "base/Text.h"
#include "sources/SourceTest.h"

#include <map>
#include <utility>

namespace tempodial {

namespace {

using testing::HasSubstr;

/// The columns of a detailed report of Clockify, as they come and go.
const std::vector<std::vector<std::string>> Forms {
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

/// A report of three entries, the last of which goes on over midnight.
class Report
{
public:
    Report(std::vector<std::string> columns, bool isMonthFirst, bool hasTwelveHours)
        : mColumns(std::move(columns))
        , mIsMonthFirst(isMonthFirst)
        , mHasTwelveHours(hasTwelveHours)
    {
    }

    std::string Text() const
    {
        std::string text = "\xef\xbb\xbf";
        for (const auto& column : mColumns) {
            text += "\"" + column + "\",";
        }
        text.back() = '\n';
        AddRow(text, "Riverside", "call", { 2026, 11, 2, 9, 0, 0 }, { 2026, 11, 2, 10, 30, 0 });
        AddRow(text, "Riverside", "plan", { 2026, 11, 13, 13, 5, 20 }, { 2026, 11, 13, 13, 36, 0 });
        AddRow(text, "Atlas", "night", { 2026, 11, 14, 23, 30, 0 }, { 2026, 11, 15, 0, 20, 0 });
        return text;
    }

private:
    std::string Day(const Date::Parts& at) const
    {
        const auto month = std::to_string(at.month);
        const auto day = std::string(at.day < 10 ? "0" : "") + std::to_string(at.day);
        return (mIsMonthFirst ? month + "/" + day : day + "/" + month) + "/" + std::to_string(at.year);
    }
    std::string Time(const Date::Parts& at) const
    {
        const auto hour = mHasTwelveHours ? (at.hour + 11) % 12 + 1 : at.hour;
        char text[32];
        std::snprintf(text, sizeof text, "%02d:%02d:%02d", hour, at.minute, at.second);
        return text + std::string(!mHasTwelveHours ? "" : at.hour < 12 ? " AM" : " PM");
    }
    void AddRow(std::string& text, const std::string& project, const std::string& words, const Date::Parts& from,
        const Date::Parts& to) const
    {
        const auto seconds = SecondsBetween(Date::FromParts(from), Date::FromParts(to));
        char length[32];
        std::snprintf(length, sizeof length, "%02d:%02d:%02d", static_cast<int>(seconds / 3600),
            static_cast<int>(seconds / 60 % 60), static_cast<int>(seconds % 60));
        const std::map<std::string, std::string> cells { { "project", project }, { "description", words },
            { "start date", Day(from) }, { "start time", Time(from) }, { "end date", Day(to) },
            { "end time", Time(to) }, { "duration (h)", length }, { "user", "Ann" }, { "billable", "Yes" } };
        for (const auto& column : mColumns) {
            const auto cell = cells.find(Fold(column));
            text += "\"" + (cell == cells.end() ? "" : cell->second) + "\",";
        }
        text.back() = '\n';
    }

    std::vector<std::string> mColumns;
    bool mIsMonthFirst;
    bool mHasTwelveHours;
};

}

class ColumnFormsTest : public SourceTest
{
};

TEST_F(ColumnFormsTest, Clockify_EachFormOrderAndClock_GivesTheSameEntries)
{
    ASSERT_EQ(Forms.size(), 7U);
    for (const auto& form : Forms) {
        for (const bool isMonthFirst : { false, true }) {
            for (const bool hasTwelveHours : { false, true }) {
                const auto text = Report(form, isMonthFirst, hasTwelveHours).Text();
                const auto data = Read("clockify", text);
                EXPECT_EQ(Told(data),
                    (std::vector<std::string> { "20261102 09:00 20261102 10:30 Clockify|call|Riverside",
                        "20261113 13:05 20261113 13:36 Clockify|plan|Riverside",
                        "20261114 23:30 20261115 00:20 Clockify|night|Atlas" }))
                    << text;
                EXPECT_TRUE(data.skipped.Counts().empty()) << text;
            }
        }
    }
}

TEST_F(ColumnFormsTest, Clockify_OnlyTheEndTellsTheOrder_IsEnough)
{
    const std::string head = "Start Date,Start Time,End Date,End Time\n";
    EXPECT_EQ(Told(Read("clockify", head + "12/11/2026,23:30,13/11/2026,00:30\n")),
        (std::vector<std::string> { "20261112 23:30 20261113 00:30 Clockify||" }));
    EXPECT_EQ(Told(Read("clockify", head + "11/12/2026,23:30,11/13/2026,00:30\n")),
        (std::vector<std::string> { "20261112 23:30 20261113 00:30 Clockify||" }));
}

TEST_F(ColumnFormsTest, Clockify_MonthThirteen_IsUnreadableWhereTheOrderIsGiven)
{
    const std::string rows = "Start Date,Start Time,End Date,End Time\n13/02/2026,09:00,13/02/2026,10:00\n"
                             "02/13/2026,09:00,02/13/2026,10:00\n";
    EXPECT_THAT(Refusal("clockify", rows), HasSubstr("--dates mdy or --dates dmy"));
    for (const auto order : { DateOrder::MonthFirst, DateOrder::DayFirst }) {
        mDates = order;
        const auto data = Read("clockify", rows);
        EXPECT_EQ(Told(data), (std::vector<std::string> { "20260213 09:00 20260213 10:00 Clockify||" }));
        EXPECT_EQ(data.skipped.Count(Skipped::Unreadable), 1);
    }
}

}
