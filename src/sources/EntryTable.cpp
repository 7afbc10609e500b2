#include "sources/EntryTable.h"

#include "base/Text.h"
#include "slots/PlainText.h"
#include "sources/CsvRecords.h"
#include "sources/MomentText.h"
#include "sources/PageHost.h"
#include "sources/SourceProblem.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

namespace {

constexpr std::int64_t LongestEntry = 86400;

/// A row of dates and times, before it is known how its dates are meant.
struct DatedRow
{
    std::string startDate, endDate;
    std::optional<std::int64_t> startTime, endTime;
    /// True length, where it is told.
    std::optional<std::int64_t> length;
    /// Where it stands in the file.
    std::int64_t line = 0;
    SourceEntry entry;
};

/// A date and a time that stand in one field, with a blank, a comma or a T between them.
std::pair<std::string, std::string> DateAndTime(const std::string& field)
{
    const std::string text(Trimmed(field));
    const auto end = std::min(text.find_first_of(" \t,T"), text.size());
    const auto begin = std::min(text.find_first_not_of(" \t,T", end), text.size());
    return { text.substr(0, end), text.substr(begin) };
}

/// What an entry of a time sheet is about, empty when it doesn't say.
std::string TextOf(const std::string& description, const std::string& task)
{
    auto text = PlainText(description);
    const auto more = PlainText(task);
    if (!more.empty() && more != text) {
        text += (text.empty() ? "" : ", ") + more;
    }
    return text;
}

/// The dates of a row, read in that order; nothing when there aren't both.
std::optional<std::pair<Date, Date>> DaysOf(const DatedRow& row, DateOrder order)
{
    const auto start = ReadDay(row.startDate, order);
    const auto end = ReadDay(row.endDate, order);
    return start && end ? std::optional(std::pair(*start, *end)) : std::nullopt;
}

/// How many of the dates there aren't in that order.
std::int64_t Impossible(const std::vector<DatedRow>& rows, DateOrder order)
{
    return std::count_if(rows.begin(), rows.end(), [order](const auto& row) { return !DaysOf(row, order); });
}

/// True when an order has a row that the other refuses.
bool HasOwnRow(const std::vector<DatedRow>& rows, DateOrder order, DateOrder other)
{
    return std::any_of(
        rows.begin(), rows.end(), [&](const auto& row) { return DaysOf(row, order) && !DaysOf(row, other); });
}

DateOrder OrderOf(const std::vector<DatedRow>& rows, DateOrder given)
{
    const bool isSame = std::all_of(rows.begin(), rows.end(),
        [](const auto& row) { return DaysOf(row, DateOrder::MonthFirst) == DaysOf(row, DateOrder::DayFirst); });
    if (given != DateOrder::FromTheFile || isSame) {
        return given == DateOrder::FromTheFile ? DateOrder::MonthFirst : given;
    }
    const auto monthFirst = Impossible(rows, DateOrder::MonthFirst);
    const auto dayFirst = Impossible(rows, DateOrder::DayFirst);
    if (monthFirst < dayFirst && HasOwnRow(rows, DateOrder::MonthFirst, DateOrder::DayFirst)) {
        return DateOrder::MonthFirst;
    }
    if (dayFirst < monthFirst && HasOwnRow(rows, DateOrder::DayFirst, DateOrder::MonthFirst)) {
        return DateOrder::DayFirst;
    }
    throw WrongSource("the file's dates can be read with the month first or with the day first: say which with --dates "
                      "mdy or --dates dmy");
}

/// A table of entries while it is read.
class Reading
{
public:
    Reading(std::istream& stream, const SourceSettings& settings, EntryTableKind kind)
        : mSettings(settings)
        , mKind(kind)
        , mRecords(stream, settings, mData.skipped)
    {
    }

    SourceData All()
    {
        if (mKind == EntryTableKind::Csv) {
            ReadMoments();
        } else {
            ReadDatedRows();
        }
        return std::move(mData);
    }

private:
    /// Refuses a table that hasn't these columns. What it has instead may be anybody's words and isn't told.
    [[noreturn]] void Refuse(const char* columns, const std::vector<std::pair<const char*, bool>>& found) const
    {
        std::string missing;
        for (const auto& [name, isThere] : found) {
            missing += isThere ? "" : (missing.empty() ? "" : ", ") + std::string(name);
        }
        throw WrongSource("the first line must name the columns " + std::string(columns) + "; missing: " + missing);
    }

    void ReadMoments()
    {
        const auto start = mRecords.Column({ "start" });
        const auto end = mRecords.Column({ "end" });
        const auto program = mRecords.Column({ "program" });
        if (!start || !end || !program) {
            Refuse("start, end and program",
                { { "start", start.has_value() }, { "end", end.has_value() }, { "program", program.has_value() } });
        }
        const auto title = mRecords.Column({ "title" });
        const auto project = mRecords.Column({ "project" });
        const auto url = mRecords.Column({ "url" });
        std::vector<DatedRow> rows;
        while (mRecords.Next()) {
            mLine = mRecords.Line();
            SourceEntry entry;
            entry.isWindow = true;
            entry.words.program = mRecords.Field(program);
            entry.words.title = mRecords.Field(title);
            entry.words.host = PageHost(mRecords.Field(url));
            entry.project = mRecords.Field(project);
            const auto from = ReadMoment(mRecords.Field(start));
            const auto to = ReadMoment(mRecords.Field(end));
            if (from && to && from->offset && to->offset) {
                TakeMoments(from->Moment(), to->Moment(), std::move(entry));
            } else if (from && to && !from->offset && !to->offset) {
                TakeLocal(from->written, to->written, std::nullopt, std::move(entry));
            } else {
                const auto [startDate, startTime] = DateAndTime(mRecords.Field(start));
                const auto [endDate, endTime] = DateAndTime(mRecords.Field(end));
                AddRow(
                    { startDate, endDate, ReadTime(startTime), ReadTime(endTime), {}, mLine, std::move(entry) }, rows);
            }
        }
        TakeRows(std::move(rows));
    }

    void ReadDatedRows()
    {
        const bool isClockify = mKind == EntryTableKind::Clockify;
        const auto startDate = mRecords.Column({ "Start date" });
        const auto startTime = mRecords.Column({ "Start time" });
        const auto endDate = mRecords.Column({ "End date" });
        const auto endTime = mRecords.Column({ "End time" });
        const auto length = mRecords.Column({ "Duration (h)", "Duration" });
        const bool hasEnd = endDate && endTime;
        if (!startDate || !startTime || (!hasEnd && !(isClockify && length))) {
            Refuse(isClockify ? "Start Date, Start Time, and End Date with End Time or Duration (h)"
                              : "Start date, Start time, End date and End time",
                { { "Start date", startDate.has_value() }, { "Start time", startTime.has_value() },
                    { "End date", endDate || (isClockify && length) },
                    { "End time", endTime || (isClockify && length) } });
        }
        const auto project = mRecords.Column({ "Project" });
        const auto description = mRecords.Column({ "Description" });
        const auto task = isClockify ? mRecords.Column({ "Task", "Activity" }) : mRecords.Column({ "Task" });
        std::vector<DatedRow> rows;
        while (mRecords.Next()) {
            DatedRow row;
            row.startDate = mRecords.Field(startDate);
            row.startTime = ReadTime(mRecords.Field(startTime));
            row.length = ReadLength(mRecords.Field(length));
            if (hasEnd) {
                row.endDate = mRecords.Field(endDate);
                row.endTime = ReadTime(mRecords.Field(endTime));
            } else if (row.startTime && row.length) {
                row.endDate = row.startDate;
                row.endTime = *row.startTime + *row.length;
            }
            row.line = mRecords.Line();
            row.entry.project = mRecords.Field(project);
            row.entry.words.program = isClockify ? "Clockify" : "Toggl";
            row.entry.words.title = TextOf(mRecords.Field(description), mRecords.Field(task));
            AddRow(std::move(row), rows);
        }
        TakeRows(std::move(rows));
    }

    /// Keeps a row until it is known how dates are meant, unless its times can't be read.
    void AddRow(DatedRow row, std::vector<DatedRow>& rows)
    {
        if (row.startTime && row.endTime) {
            rows.push_back(std::move(row));
        } else {
            mData.skipped.AddUnreadable(row.line);
        }
    }

    void TakeRows(std::vector<DatedRow> rows)
    {
        const auto order = OrderOf(rows, mSettings.dates);
        for (auto& row : rows) {
            mLine = row.line;
            if (const auto days = DaysOf(row, order)) {
                TakeLocal(days->first.AddSeconds(*row.startTime), days->second.AddSeconds(*row.endTime), row.length,
                    std::move(row.entry));
            } else {
                mData.skipped.AddUnreadable(mLine);
            }
        }
    }

    void TakeMoments(std::int64_t from, std::int64_t to, SourceEntry entry)
    {
        entry.start = LocalSeconds(mSettings.zone, from);
        entry.end = entry.start + (to - from);
        if (!mSettings.asSightings || to <= from || to - from > LongestEntry) {
            Take(std::move(entry));
            return;
        }
        ForLocalTimes(
            mSettings.zone, from, to, [&](std::int64_t begin, std::int64_t end) { TakeWindow(begin, end, entry); });
    }

    void TakeLocal(Date from, Date to, std::optional<std::int64_t> length, SourceEntry entry)
    {
        entry.start = from.Seconds();
        entry.end = to.Seconds();
        // Where the clock was put forward or back in between, the true length is another.
        const auto trueLength = mSettings.zone.MomentOf(to) - mSettings.zone.MomentOf(from);
        const auto local = entry.end - entry.start;
        if (!mSettings.asSightings && local > 0 && trueLength > 0 && trueLength != local) {
            entry.end = entry.start + (length && *length > 0 ? *length : trueLength);
        }
        Take(std::move(entry));
    }

    void TakeWindow(std::int64_t begin, std::int64_t end, const SourceEntry& entry)
    {
        if (mData.computers.empty()) {
            mData.computers.emplace_back();
        }
        auto words = entry.words;
        words.project = entry.project;
        mData.windows.push_back({ begin, end, 0, mData.sightings.NumberOf(words) });
    }

    void Take(SourceEntry entry)
    {
        if (entry.end == entry.start) {
            mData.skipped.Add(Skipped::ZeroLength);
        } else if (entry.end < entry.start) {
            mData.skipped.AddUnreadable(mLine);
        } else if (mSettings.asSightings) {
            TakeWindow(entry.start, entry.end, entry);
        } else if (entry.end - entry.start > LongestEntry) {
            mData.skipped.Add(Skipped::TooLong);
        } else {
            mData.entries.push_back(std::move(entry));
        }
    }

    const SourceSettings& mSettings;
    EntryTableKind mKind;
    SourceData mData;
    CsvRecords mRecords;
    /// Where what is being taken stands in the file.
    std::int64_t mLine = 0;
};

}

SourceData EntryTable::Read(std::istream& stream, const SourceSettings& settings)
{
    return Reading(stream, settings, mKind).All();
}

}
