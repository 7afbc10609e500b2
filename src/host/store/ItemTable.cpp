#include "host/store/ItemTable.h"

#include "base/Failure.h"
#include "host/store/EntryIds.h"
#include "host/store/ItemSpan.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/PropertyCodec.h"
#include "host/store/Query.h"

#include <algorithm>

namespace tempodial {

namespace {

const std::string Columns = "item.id, item.folder, item.kind, item.message_class, item.starts, item.ends, "
                            "item.recurring, item.subject, item.mileage, item.billing, item.properties, item.body, "
                            "item.by_hand, item.saved";

/// An item whose columns stand in a row from one on.
StoredItem Read(MailboxDatabase& database, const Query& query, int column = 0)
{
    StoredItem item;
    item.row = query.Int(column++);
    item.folder = query.Int(column++);
    item.data.kind = static_cast<ObjectClass>(query.Int(column++));
    item.data.messageClass = query.Text(column++);
    item.data.start = Date::FromSeconds(query.Int(column++));
    item.data.end = Date::FromSeconds(query.Int(column++));
    item.data.recurring = query.Int(column++) != 0;
    item.data.subject = query.Text(column++);
    item.data.mileage = query.Text(column++);
    item.data.billingInformation = query.Text(column++);
    item.data.properties = database.Properties(query.View(column++));
    item.data.body = query.Text(column++);
    item.data.isProjectByHand = query.Int(column++) != 0;
    if (!query.IsNull(column)) {
        item.saved = Date::FromSeconds(query.Int(column));
    }
    return item;
}

Query& BindMoment(Query& query, std::optional<Date> moment)
{
    return moment ? query.Bind(moment->Seconds()) : query.BindNull();
}

std::int64_t SpanOf(const ItemData& data)
{
    return ItemSpan::ClassOf(SecondsBetween(data.start, data.end));
}

std::string JsonList(std::span<const std::int64_t> rows)
{
    std::string json = "[";
    for (const auto row : rows) {
        json += (json.size() > 1 ? "," : "") + std::to_string(row);
    }
    return json + "]";
}

std::vector<std::int64_t> RowsOf(Query& query)
{
    std::vector<std::int64_t> rows;
    while (query.Step()) {
        rows.push_back(query.Int(0));
    }
    return rows;
}

std::string OrderSql(const ItemOrder& order)
{
    if (!order.field) {
        return "";
    }
    const auto value = order.field->type == FilterField::Type::Text ? "fold_text(ifnull(" + order.field->sql + ", ''))"
                                                                    : order.field->sql;
    return value + (order.descending ? " DESC, " : ", ");
}

void BindOrder(Query& query, const ItemOrder& order)
{
    if (order.field && order.field->bound) {
        query.Bind(*order.field->bound);
    }
}

}

ItemTable::ItemTable(MailboxDatabase& database)
    : mDatabase(database)
    , mLastRow(database.Number("SELECT max(ifnull(max(id), 0), (SELECT last_item FROM mailbox)) FROM item"))
{
}

std::int64_t ItemTable::Insert(std::int64_t folder, const ItemData& data, std::optional<Date> saved)
{
    // Rows go up even over insertions that were undone, whose identity somebody may still hold.
    const auto row = EntryIds::Next(mLastRow);
    BeginChange(row);
    mLastRow = row;
    static const std::string sql = "INSERT INTO item (id, folder, kind, message_class, starts, ends, span, recurring, "
                                   "subject, mileage, billing, properties, body, by_hand, saved) "
                                   "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";
    const auto properties = PropertyCodec::Encode(data.properties);
    Query query(mDatabase, sql);
    query.Bind(row)
        .Bind(folder)
        .Bind(static_cast<std::int64_t>(data.kind))
        .Bind(data.messageClass)
        .Bind(data.start.Seconds())
        .Bind(data.end.Seconds())
        .Bind(SpanOf(data))
        .Bind(std::int64_t { data.recurring })
        .Bind(data.subject)
        .Bind(data.mileage)
        .Bind(data.billingInformation)
        .Bind(properties)
        .Bind(data.body)
        .Bind(std::int64_t { data.isProjectByHand });
    BindMoment(query, saved).Run();
    ++mChanges;
    return row;
}

void ItemTable::Update(std::int64_t row, const ItemData& before, const ItemData& data, std::optional<Date> saved)
{
    // An index is written anew when one of its columns is named, so those that stay aren't.
    static const std::string others
        = "recurring = ?, subject = ?, mileage = ?, billing = ?, "
          "properties = ifnull(?, properties), body = ?, by_hand = ?, saved = ?, revision = revision + 1 WHERE id = ?";
    static const std::string sameTimes = "UPDATE item SET " + others;
    static const std::string otherEnd = "UPDATE item SET ends = ?, " + others;
    static const std::string otherTimes = "UPDATE item SET starts = ?, ends = ?, span = ?, " + others;

    BeginChange(row);
    // Most items that are changed just get longer; the properties that stay needn't be put together then.
    std::optional<std::string> properties;
    if (data.properties != before.properties) {
        properties = PropertyCodec::Encode(data.properties);
    }
    const bool startStays = data.start == before.start && SpanOf(data) == SpanOf(before);
    const bool endStays = data.end == before.end;
    Query query(mDatabase, !startStays ? otherTimes : !endStays ? otherEnd : sameTimes);
    if (!startStays) {
        query.Bind(data.start.Seconds());
    }
    if (!startStays || !endStays) {
        query.Bind(data.end.Seconds());
    }
    if (!startStays) {
        query.Bind(SpanOf(data));
    }
    query.Bind(std::int64_t { data.recurring })
        .Bind(data.subject)
        .Bind(data.mileage)
        .Bind(data.billingInformation)
        .BindOptional(properties)
        .Bind(data.body)
        .Bind(std::int64_t { data.isProjectByHand });
    BindMoment(query, saved).Bind(row).Run();
    NoteChangedRow();
}

void ItemTable::Move(std::int64_t row, std::int64_t folder)
{
    BeginChange(row);
    Query(mDatabase, "UPDATE item SET folder = ?, revision = revision + 1 WHERE id = ?").Bind(folder).Bind(row).Run();
    NoteChangedRow();
}

void ItemTable::Delete(std::int64_t row)
{
    mDatabase.Atomically([&] {
        BeginChange(row);
        RetireRows();
        Query(mDatabase, "DELETE FROM item WHERE id = ?").Bind(row).Run();
    });
    ++mChanges;
}

void ItemTable::RetireRows()
{
    Query(mDatabase, "UPDATE mailbox SET last_item = ?").Bind(mLastRow).Run();
}

std::optional<StoredItem> ItemTable::Load(std::int64_t row)
{
    static const std::string sql = "SELECT " + Columns + " FROM item WHERE id = ?";
    Query query(mDatabase, sql);
    query.Bind(row);
    return query.Step() ? std::optional(Read(mDatabase, query)) : std::nullopt;
}

std::vector<std::optional<StoredItem>> ItemTable::Load(std::span<const std::int64_t> rows)
{
    // Each says its place. To have SQLite put them in order takes them through a table of its own, with all their
    // texts.
    static const std::string sql
        = "SELECT list.key, " + Columns + " FROM json_each(?) AS list CROSS JOIN item ON item.id = list.value";
    std::vector<std::optional<StoredItem>> items(rows.size());
    Query query(mDatabase, sql);
    query.Bind(JsonList(rows));
    while (query.Step()) {
        items[static_cast<std::size_t>(query.Int(0))] = Read(mDatabase, query, 1);
    }
    return items;
}

std::vector<std::int64_t> ItemTable::All(std::int64_t folder, const ItemOrder& order)
{
    Query query(mDatabase, "SELECT item.id FROM item WHERE item.folder = ? ORDER BY " + OrderSql(order) + "item.id");
    query.Bind(folder);
    BindOrder(query, order);
    return RowsOf(query);
}

std::vector<std::int64_t> ItemTable::Select(std::int64_t folder, const FilterCondition& condition)
{
    auto rows = Rows(folder, condition, "");
    // SQLite would go back to the table of the items for this.
    std::sort(rows.begin(), rows.end());
    return rows;
}

std::int64_t ItemTable::First(std::int64_t folder, const FilterCondition& condition)
{
    const auto rows = Rows(folder, condition, " ORDER BY item.id LIMIT 1");
    return rows.empty() ? 0 : rows.front();
}

std::vector<std::int64_t> ItemTable::Sorted(std::span<const std::int64_t> rows, const ItemOrder& order)
{
    Query query(mDatabase,
        "SELECT item.id FROM json_each(?) AS list CROSS JOIN item ON item.id = list.value ORDER BY " + OrderSql(order)
            + "list.id");
    query.Bind(JsonList(rows));
    BindOrder(query, order);
    return RowsOf(query);
}

void ItemTable::BeginChange(std::int64_t row)
{
    mDatabase.CheckWhole();
    if (mWatcher) {
        mWatcher(row);
    }
}

void ItemTable::NoteChangedRow()
{
    if (mDatabase.RowsChanged() == 0) {
        throw Failure(Error::ObjectNotFound);
    }
    ++mChanges;
}

std::vector<std::int64_t> ItemTable::Rows(
    std::int64_t folder, const FilterCondition& condition, const std::string& ending)
{
    static const std::string bySpan = "SELECT item.id FROM (VALUES " + ItemSpan::ClassRows()
        + ") AS class CROSS JOIN item INDEXED BY item_span WHERE item.folder = ? AND item.span = class.column1 "
          "AND item.starts >= max(?, ? - class.column2) AND item.starts < ? AND ";
    static const std::string byEnd = "SELECT item.id FROM item INDEXED BY item_end WHERE item.folder = ? "
                                     "AND item.ends >= ? AND item.ends < ? AND ";
    static const std::string byFolder = "SELECT item.id FROM item WHERE item.folder = ? AND ";

    const auto& start = condition.start;
    const auto& end = condition.end;
    const bool endNamed = end.IsBoundedBelow() && end.IsBoundedAbove();
    const bool startNamed = start.IsBoundedBelow() && start.IsBoundedAbove();
    const bool useStart = (start.IsBoundedBelow() || start.IsBoundedAbove()) && (startNamed || !endNamed);
    const bool useEnd = !useStart && (end.IsBoundedBelow() || end.IsBoundedAbove());
    Query query(mDatabase, (useStart ? bySpan : useEnd ? byEnd : byFolder) + condition.sql + ending);
    query.Bind(folder);
    if (useStart) {
        query.Bind(start.from).Bind(end.from).Bind(start.until);
    } else if (useEnd) {
        query.Bind(end.from).Bind(end.until);
    }
    for (const auto& value : condition.values) {
        std::visit([&](const auto& bound) { query.Bind(bound); }, value);
    }
    return RowsOf(query);
}

}
