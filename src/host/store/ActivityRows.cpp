#include "host/store/ActivityRows.h"

#include "host/store/FilterSql.h"
#include "host/store/ItemSpan.h"
#include "host/store/Mailbox.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxStore.h"
#include "host/store/Query.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tempodial {

namespace {

const std::string RowColumns = "item.id, item.starts, item.ends, item.by_hand, item.properties";
const std::string ByNumber = " FROM item WHERE id = ? AND folder = ? AND message_class = ?";

bool IsBefore(const ActivityRow& one, const ActivityRow& other)
{
    return one.start == other.start ? one.number < other.number : one.start < other.start;
}

}

ActivityRows::ActivityRows(const Ref<Mailbox>& mailbox, const Ref<MAPIFolder>& folder, std::string messageClass)
    : mStore(mailbox->Store())
    , mFolder(mStore->RowOf(folder))
    , mMessageClass(std::move(messageClass))
{
}

std::vector<ActivityRow> ActivityRows::StartingIn(Date from, Date until) const
{
    return List(from.Seconds(), -SecondsRange::Unbounded, until);
}

void ActivityRows::EachStartingIn(Date from, Date until, const Taking& take) const
{
    Each(from.Seconds(), -SecondsRange::Unbounded, until, take);
}

std::vector<ActivityRow> ActivityRows::Overlapping(Date from, Date until) const
{
    return List(-SecondsRange::Unbounded, from.Seconds(), until);
}

std::optional<Date> ActivityRows::LastStartBefore(Date moment) const
{
    static const std::string sql
        = "SELECT max(latest) FROM (SELECT (SELECT starts FROM item INDEXED BY item_span WHERE folder = ? "
          "AND span = class.column1 AND starts < ? AND message_class = ? ORDER BY starts DESC LIMIT 1) AS latest "
          "FROM (VALUES "
        + ItemSpan::ClassRows() + ") AS class)";
    Query query(mStore->Database(), sql);
    query.Bind(mFolder).Bind(moment.Seconds()).Bind(mMessageClass);
    return query.Step() && !query.IsNull(0) ? std::optional(Date::FromSeconds(query.Int(0))) : std::nullopt;
}

std::optional<ActivityRow> ActivityRows::Numbered(std::int64_t number) const
{
    static const std::string sql = "SELECT " + RowColumns + ByNumber;
    Query query(mStore->Database(), sql);
    query.Bind(number).Bind(mFolder).Bind(mMessageClass);
    if (!query.Step()) {
        return std::nullopt;
    }
    ActivityRow row;
    Read(query, row);
    return row;
}

std::string ActivityRows::BodyOf(std::int64_t number) const
{
    static const std::string sql = "SELECT body" + ByNumber;
    Query query(mStore->Database(), sql);
    query.Bind(number).Bind(mFolder).Bind(mMessageClass);
    return query.Step() ? query.Text(0) : std::string();
}

const std::string& ActivityRows::ListSql()
{
    // What ends behind a moment began within its class's reach before it. Without the index named, a condition on the
    // end leads to that of the ends, through all items that end later.
    static const std::string sql = "SELECT " + RowColumns + " FROM (VALUES " + ItemSpan::ClassRows()
        + ") AS class CROSS JOIN item INDEXED BY item_span WHERE item.folder = ? AND item.span = class.column1 "
          "AND item.starts >= max(?, ? - class.column2) AND item.starts < ? AND item.ends > ? "
          "AND item.message_class = ?";
    return sql;
}

std::vector<ActivityRow> ActivityRows::List(std::int64_t startsFrom, std::int64_t endsBehind, Date startsBefore) const
{
    std::vector<ActivityRow> rows;
    Each(startsFrom, endsBehind, startsBefore, [&rows](ActivityRow& row) { rows.push_back(std::move(row)); });
    // Each class comes in order. To merge them here is cheaper than to have SQLite sort rows with all their texts.
    for (auto begin = rows.begin(); begin != rows.end();) {
        const auto end = std::is_sorted_until(begin, rows.end(), IsBefore);
        std::inplace_merge(rows.begin(), begin, end, IsBefore);
        begin = end;
    }
    return rows;
}

void ActivityRows::Each(std::int64_t startsFrom, std::int64_t endsBehind, Date startsBefore, const Taking& take) const
{
    Query query(mStore->Database(), ListSql());
    query.Bind(mFolder).Bind(startsFrom).Bind(endsBehind).Bind(startsBefore.Seconds()).Bind(endsBehind);
    query.Bind(mMessageClass);
    // The texts of one row make room for those of the next.
    ActivityRow row;
    while (query.Step()) {
        Read(query, row);
        take(row);
    }
}

void ActivityRows::Read(const Query& query, ActivityRow& row) const
{
    int column = 0;
    row.number = query.Int(column++);
    row.start = Date::FromSeconds(query.Int(column++));
    row.end = Date::FromSeconds(query.Int(column++));
    row.duration = MinutesBetween(row.start, row.end);
    row.isProjectByHand = query.Int(column++) != 0;
    // In the order in which the product sets them.
    const std::array wanted { WantedText { "Type", &row.type }, WantedText { "Project", &row.project },
        WantedText { "Description", &row.description }, WantedText { "People", &row.people } };
    mStore->Database().ReadProperties(query.View(column), wanted);
}

}
