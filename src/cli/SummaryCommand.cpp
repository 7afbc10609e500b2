#include "base/Text.h"
#include "cli/ChosenProjects.h"
#include "cli/Commands.h"
#include "cli/PeriodArguments.h"
#include "cli/ProjectStyle.h"
#include "cli/TextTable.h"
#include "cli/WordArgument.h"
#include "review/ActivityReader.h"
#include "review/CsvField.h"
#include "review/PeriodColumns.h"
#include "review/TimeText.h"
#include "review/Totals.h"
#include "session/OpenProfile.h"
#include "terminal/Arguments.h"
#include "terminal/UsageError.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace tempodial {

namespace {

/// What a column is called for people: a day of the week where no two columns could be mixed up, else its first day.
std::string ColumnHeading(const Period& column, ColumnSize size, std::size_t columns)
{
    constexpr std::array<std::string_view, 7> WeekDays { "Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat" };
    constexpr std::size_t MostOfAMonth = 28;
    constexpr std::size_t MonthSize = 7;
    constexpr std::size_t DayAt = 8;
    const auto day = IsoDay(column.first);
    if (size == ColumnSize::Day && columns <= MostOfAMonth) {
        return std::string(WeekDays.at(static_cast<std::size_t>(column.first.Weekday()) - 1)) + " " + day.substr(DayAt);
    }
    return size == ColumnSize::Month ? day.substr(0, MonthSize) : day;
}

class SummaryCommand final : public Command
{
public:
    SummaryCommand()
        : Command({ "summary", "Show where the time of some days went, in a table",
            "A row for each project, the largest first, and a column for each day, with sums\n"
            "and shares. An activity counts whole, on the day on which it starts.\n"
                + PeriodArguments::HelpWith("this week")
                + "\n"
                  "  tempodial summary\n"
                  "  tempodial summary last-month --columns week --decimal\n"
                  "  tempodial summary 2006 --rows application --columns none\n"
                  "  tempodial summary --project Riverside --rows description\n"
                  "  tempodial summary month --csv > month.csv" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        mDays.Declare(arguments);
        arguments.Optional(
            "--rows WHAT", mRows, "What the rows are: project, application or description;\ndefault project");
        arguments.Optional("--columns WHAT", mColumns, "What the columns are: day, week, month or none; default day");
        mProjects.Declare(arguments);
        arguments.Flag("--decimal", mIsDecimal, "Times as hours with decimals: 1.50 instead of 1:30");
        arguments.Flag("--csv", mIsCsv, "A table for spreadsheets (CSV)");
    }

    Reply Run(const Options& options) override
    {
        const auto days = mDays.Days(options, "week");
        const auto kind = ToValue<RowKind>("--rows", mRows, { "project", "application", "description" });
        const auto size = ToValue<ColumnSize>("--columns", mColumns, { "day", "week", "month", "none" });
        mProjects.RequireUsable();
        const auto columns = ColumnsOf(days, size, PeriodArguments::WeekStart(options));
        RequireFew(columns);
        const auto profile = ReadProfile(options);
        const auto totals = Totals::Of(mProjects.Of(profile, EachStartingIn(profile, days)), kind, columns);
        Reply reply;
        if (options.json) {
            reply.document = Document(days, columns, totals);
        } else if (mIsCsv) {
            reply.content = Csv(columns, totals);
        } else if (totals.rows.empty()) {
            reply.summary = "No activities.\n";
        } else {
            reply.text.AddHeading(IsoDay(days.first) + (days.first == days.last ? "" : " to " + IsoDay(days.last)));
            reply.text += "\n";
            reply.text += Table(columns, size, totals);
        }
        return reply;
    }

private:
    static void RequireFew(const std::vector<Period>& columns)
    {
        constexpr std::size_t MostColumns = 40'000;
        if (columns.size() > MostColumns) {
            throw UsageError("a table can't have more than " + std::to_string(MostColumns)
                + " columns: give fewer days, or larger columns, such as --columns month");
        }
    }

    std::string Time(std::int64_t minutes) const { return mIsDecimal ? DecimalHours(minutes) : HourText(minutes); }

    static JsonValue Numbers(const std::vector<std::int64_t>& minutes)
    {
        auto numbers = JsonValue::Array();
        for (const auto number : minutes) {
            numbers.Append(number);
        }
        return numbers;
    }

    static JsonValue Document(const Period& days, const std::vector<Period>& columns, const Totals& totals)
    {
        auto spans = JsonValue::Array();
        for (const auto& column : columns) {
            spans.Append({ { "from", IsoDay(column.first) }, { "to", IsoDay(column.last) } });
        }
        auto rows = JsonValue::Array();
        for (const auto& row : totals.rows) {
            rows.Append({ { "name", row.name }, { "minutes", Numbers(row.minutes) }, { "total", row.total } });
        }
        return { { "from", IsoDay(days.first) }, { "to", IsoDay(days.last) }, { "columns", std::move(spans) },
            { "rows", std::move(rows) }, { "totals", Numbers(totals.minutes) }, { "total", totals.total } };
    }

    std::string CsvLine(const std::string& name, const std::vector<std::int64_t>& minutes, std::int64_t total) const
    {
        auto line = CsvField(name);
        for (const auto number : minutes) {
            line += "," + Time(number);
        }
        return line + "," + Time(total) + std::string(CrLf);
    }

    std::string Csv(const std::vector<Period>& columns, const Totals& totals) const
    {
        auto csv = mRows;
        for (const auto& column : columns) {
            csv += "," + IsoDay(column.first);
        }
        csv += ",total" + std::string(CrLf);
        for (const auto& row : totals.rows) {
            csv += CsvLine(row.name, row.minutes, row.total);
        }
        return csv + CsvLine("total", totals.minutes, totals.total);
    }

    TextTable Table(const std::vector<Period>& columns, ColumnSize size, const Totals& totals) const
    {
        std::vector<TextTable::Side> sides(columns.size() + 3, TextTable::Side::Right);
        sides.front() = TextTable::Side::Left;
        TextTable table(std::move(sides));
        std::vector<std::string> heading { mRows };
        std::transform(heading.front().begin(), heading.front().end(), heading.front().begin(),
            [](char letter) { return static_cast<char>(letter - 'a' + 'A'); });
        for (const auto& column : columns) {
            heading.push_back(ColumnHeading(column, size, columns.size()));
        }
        heading.insert(heading.end(), { "TOTAL", "SHARE" });
        table.AddHeading(heading);
        for (const auto& row : totals.rows) {
            table.Add(Cells(row.name, row.minutes, row.total, totals.total),
                mRows == "project" ? ProjectStyle(row.name) : TextStyle());
        }
        table.AddHeading(Cells("TOTAL", totals.minutes, totals.total, totals.total));
        return table;
    }

    std::vector<std::string> Cells(
        const std::string& name, const std::vector<std::int64_t>& minutes, std::int64_t total, std::int64_t all) const
    {
        constexpr std::int64_t Hundred = 100;
        std::vector<std::string> cells { name };
        for (const auto number : minutes) {
            cells.push_back(number == 0 ? "" : Time(number));
        }
        cells.push_back(Time(total));
        cells.push_back(std::to_string((total * Hundred + all / 2) / all) + " %");
        return cells;
    }

    PeriodArguments mDays;
    std::string mRows = "project";
    std::string mColumns = "day";
    ChosenProjects mProjects;
    bool mIsDecimal = false;
    bool mIsCsv = false;
};

}

std::unique_ptr<Command> MakeSummaryCommand()
{
    return std::make_unique<SummaryCommand>();
}

}
