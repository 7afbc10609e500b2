#include "host/store/StepTable.h"

#include "host/store/MailboxDatabase.h"
#include "host/store/Query.h"

namespace tempodial {

namespace {

const std::string StepColumns = "SELECT id, moment, command, undoes, is_taken_back, rules_before, rules_after, "
                                "(SELECT count(*) FROM step_item WHERE step_item.step = step.id) FROM step ";

/// What a step brings back of an item.
const std::string ItemColumns
    = "folder, kind, message_class, starts, ends, span, recurring, subject, mileage, billing, "
      "properties, body, by_hand";

/// The rows of a step whose item is in the state in which the step left it, and that can be brought back.
const std::string Restorables
    = " FROM step_item WHERE step_item.step = ? AND step_item.left_revision IS "
      "(SELECT revision FROM item WHERE item.id = step_item.item) AND (step_item.folder IS NULL "
      "OR EXISTS (SELECT 1 FROM folder WHERE folder.id = step_item.folder))";

const std::string PresentRevision = "(SELECT revision FROM item WHERE item.id = step_item.item)";
/// Notes the state of a step's items as that in which it leaves them, where it isn't the one that was expected.
const std::string LeaveItems = "UPDATE step_item SET left_revision = " + PresentRevision
    + " WHERE step = ? AND left_revision IS NOT " + PresentRevision;
/// Without an item the values of the other side are nothing, as those of an item are that there wasn't before.
const std::string DropUnchangedItems = "DELETE FROM step_item WHERE step = ? AND (" + ItemColumns + ") IS (SELECT "
    + ItemColumns + " FROM item WHERE item.id = step_item.item)";
const std::string OneItem = " AND item = ?";

}

std::vector<Step> StepTable::Newest(Date from, std::int64_t most)
{
    std::vector<Step> steps;
    Query query(mDatabase, StepColumns + "WHERE moment >= ? ORDER BY id DESC LIMIT ?");
    query.Bind(from.Seconds()).Bind(most);
    while (query.Step()) {
        steps.push_back(Read(query));
    }
    return steps;
}

std::optional<Step> StepTable::Find(std::int64_t number)
{
    Query query(mDatabase, StepColumns + "WHERE id = ?");
    query.Bind(number);
    return query.Step() ? std::optional(Read(query)) : std::nullopt;
}

std::optional<Step> StepTable::NewestInForce(Date from)
{
    Query query(
        mDatabase, StepColumns + "WHERE moment >= ? AND undoes IS NULL AND NOT is_taken_back ORDER BY id DESC LIMIT 1");
    query.Bind(from.Seconds());
    return query.Step() ? std::optional(Read(query)) : std::nullopt;
}

std::optional<Step> StepTable::WithRulesDue()
{
    Query query(mDatabase, StepColumns + "WHERE id = (SELECT max(id) FROM step) AND are_rules_due");
    return query.Step() ? std::optional(Read(query)) : std::nullopt;
}

std::int64_t StepTable::NextNumber()
{
    return mDatabase.Number("SELECT last_step FROM mailbox") + 1;
}

void StepTable::Begin(const Step& step)
{
    Query(mDatabase, "INSERT OR IGNORE INTO step (id, moment, command) VALUES (?, ?, ?)")
        .Bind(step.number)
        .Bind(step.moment.Seconds())
        .Bind(step.command)
        .Run();
}

void StepTable::Keep(std::int64_t step, std::int64_t item)
{
    // Most items change once, and most of them stay, so the state in which the step leaves them is known already.
    static const std::string sql = "INSERT OR IGNORE INTO step_item (step, item, " + ItemColumns
        + ", revision, left_revision) SELECT ?, wanted.column1, " + ItemColumns
        + ", revision, ifnull(revision + 1, 0) FROM (VALUES (?)) AS wanted LEFT JOIN item ON item.id = wanted.column1";
    Query(mDatabase, sql).Bind(step).Bind(item).Run();
}

void StepTable::Leave(std::int64_t step, std::int64_t item)
{
    for (const auto& sql : { LeaveItems + OneItem, DropUnchangedItems + OneItem }) {
        Query(mDatabase, sql).Bind(step).Bind(item).Run();
    }
}

bool StepTable::End(const Step& step)
{
    for (const auto& sql : { LeaveItems, DropUnchangedItems }) {
        Query(mDatabase, sql).Bind(step.number).Run();
    }
    return Finish(step);
}

bool StepTable::Finish(const Step& step)
{
    const bool hasItems = [&] {
        Query query(mDatabase, "SELECT 1 FROM step_item WHERE step = ? LIMIT 1");
        query.Bind(step.number);
        return query.Step();
    }();
    if (!hasItems && !step.rulesAfter) {
        Query(mDatabase, "DELETE FROM step WHERE id = ?").Bind(step.number).Run();
        return false;
    }
    Query query(
        mDatabase, "UPDATE step SET undoes = ?, rules_before = ?, rules_after = ?, are_rules_due = ? WHERE id = ?");
    query.BindOptional(step.undoes);
    query.BindOptional(step.rulesBefore);
    query.BindOptional(step.rulesAfter);
    query.Bind(std::int64_t { step.rulesAfter.has_value() }).Bind(step.number).Run();
    Query(mDatabase, "UPDATE mailbox SET last_step = ?").Bind(step.number).Run();
    return true;
}

void StepTable::NoteRulesReached(std::int64_t step)
{
    Query(mDatabase, "UPDATE step SET are_rules_due = 0 WHERE id = ?").Bind(step).Run();
}

void StepTable::RemoveBefore(Date moment)
{
    Query(mDatabase, "DELETE FROM step WHERE moment < ?").Bind(moment.Seconds()).Run();
}

StepItems StepTable::Restorable(std::int64_t step)
{
    static const std::string sql
        = "SELECT count(*), count(*) FILTER (WHERE step_item.folder IS NULL), (SELECT count(*) FROM step_item WHERE "
          "step = ?)"
        + Restorables;
    Query query(mDatabase, sql);
    query.Bind(step).Bind(step);
    StepItems items;
    if (query.Step()) {
        items.restored = query.Int(0);
        items.removed = query.Int(1);
        items.kept = query.Int(2) - items.restored;
    }
    return items;
}

void StepTable::Restore(std::int64_t step, std::int64_t keeper, std::optional<Date> saved)
{
    static const std::string keep = "INSERT OR IGNORE INTO step_item (step, item, " + ItemColumns
        + ", revision) SELECT ?, wanted.id, " + ItemColumns + ", revision FROM (SELECT step_item.item AS id"
        + Restorables + ") AS wanted LEFT JOIN item ON item.id = wanted.id";
    static const std::string kept = " AND item IN (SELECT item FROM step_item WHERE step = ?)";
    static const std::string remove
        = "DELETE FROM item WHERE id IN (SELECT item FROM step_item WHERE step = ? AND folder IS NULL" + kept + ")";
    // The state is that of before, so that the steps before this one can be taken back as well.
    static const std::string bringBack = "INSERT OR REPLACE INTO item (id, saved, revision, " + ItemColumns
        + ") SELECT item, ?, revision, " + ItemColumns + " FROM step_item WHERE step = ? AND folder IS NOT NULL" + kept;
    Query(mDatabase, keep).Bind(keeper).Bind(step).Run();
    Query(mDatabase, remove).Bind(step).Bind(keeper).Run();
    Query query(mDatabase, bringBack);
    query.BindOptional(saved ? std::optional(saved->Seconds()) : std::nullopt);
    query.Bind(step).Bind(keeper).Run();
}

void StepTable::SetTakenBack(const Step& step, bool isTakenBack)
{
    Query(mDatabase, "UPDATE step SET is_taken_back = ? WHERE id = ?")
        .Bind(std::int64_t { isTakenBack })
        .Bind(step.number)
        .Run();
    const auto undone = step.undoes ? Find(*step.undoes) : std::nullopt;
    if (undone) {
        SetTakenBack(*undone, !isTakenBack);
    }
}

std::vector<std::int64_t> StepTable::ItemsOf(std::int64_t step)
{
    std::vector<std::int64_t> items;
    Query query(mDatabase, "SELECT item FROM step_item WHERE step = ? ORDER BY item");
    query.Bind(step);
    while (query.Step()) {
        items.push_back(query.Int(0));
    }
    return items;
}

Step StepTable::Read(const Query& query)
{
    int column = 0;
    Step step;
    step.number = query.Int(column++);
    step.moment = Date::FromSeconds(query.Int(column++));
    step.command = query.Text(column++);
    if (const auto undoes = column++; !query.IsNull(undoes)) {
        step.undoes = query.Int(undoes);
    }
    step.isTakenBack = query.Int(column++) != 0;
    for (auto* rules : { &step.rulesBefore, &step.rulesAfter }) {
        if (const auto at = column++; !query.IsNull(at)) {
            *rules = query.Text(at);
        }
    }
    step.items = query.Int(column);
    return step;
}

}
