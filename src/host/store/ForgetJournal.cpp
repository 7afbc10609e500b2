#include "host/store/ForgetJournal.h"

#include "base/Failure.h"
#include "host/store/LineMemory.h"
#include "host/store/Mailbox.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxStore.h"
#include "host/store/Query.h"
#include "host/store/StepTable.h"

#include <limits>

namespace tempodial {

namespace {

/// What a row is about of those that say what is due.
constexpr auto DueLine = "line";
constexpr auto DueText = "text";
constexpr auto DueProject = "project";
constexpr auto DueWipe = "wipe";

const std::string StateColumns = "starts, ends, subject, body, properties";

void BindOrNull(Query& query, const std::optional<std::string>& text)
{
    if (text) {
        query.Bind(*text);
    } else {
        query.BindNull();
    }
}

ActivityState StateIn(MailboxDatabase& database, const Query& query)
{
    int column = 0;
    ActivityState state;
    state.number = query.Int(column++);
    if (const auto step = column++; !query.IsNull(step)) {
        state.step = query.Int(step);
    }
    state.start = Date::FromSeconds(query.Int(column++));
    state.end = Date::FromSeconds(query.Int(column++));
    state.subject = query.Text(column++);
    state.body = query.Text(column++);
    const auto properties = database.Properties(query.Text(column));
    const auto text = [&properties](const char* name) {
        const auto* property = FindProperty(properties, name);
        return property == nullptr ? std::string() : property->value.ToText();
    };
    state.project = text("Project");
    state.type = text("Type");
    state.description = text("Description");
    state.people = text("People");
    return state;
}

}

ForgetJournal::ForgetJournal(const Ref<Mailbox>& mailbox)
    : mStore(mailbox->Store())
{
}

void ForgetJournal::EachState(
    const std::string& messageClass, const std::function<void(const ActivityState& state)>& take) const
{
    auto& database = mStore->Database();
    const auto list = [&](const std::string& sql) {
        Query query(database, sql);
        query.Bind(messageClass);
        while (query.Step()) {
            take(StateIn(database, query));
        }
    };
    list("SELECT id, NULL, " + StateColumns + " FROM item WHERE message_class = ?");
    list("SELECT item, step, " + StateColumns + " FROM step_item WHERE message_class = ?");
}

std::vector<Step> ForgetJournal::Steps() const
{
    return StepTable(mStore->Database())
        .Newest(Date::FromParts({ 100, 1, 1 }), std::numeric_limits<std::int64_t>::max());
}

std::int64_t ForgetJournal::Position(const std::string& dayKey) const
{
    Query query(mStore->Database(), "SELECT lines FROM import_position WHERE day = ?");
    query.Bind(dayKey);
    return query.Step() ? query.Int(0) : 0;
}

void ForgetJournal::Forget(const ForgetOrder& order)
{
    auto& database = mStore->Database();
    // What is deleted is overwritten, also in pages that go on.
    database.Execute("PRAGMA secure_delete = ON");
    database.Atomically([&] {
        DeleteRows(order);
        for (const auto& [day, lines] : order.lines) {
            ForgetLines(day, lines);
        }
        KeepDue(order);
    });
    mStore->NoteForeignChange();
}

std::optional<ForgetRest> ForgetJournal::Due() const
{
    std::optional<ForgetRest> rest;
    Query query(mStore->Database(), "SELECT what, day, value FROM forget_due");
    while (query.Step()) {
        if (!rest) {
            rest.emplace();
        }
        const auto what = query.Text(0);
        auto value = query.Text(2);
        if (what == DueLine) {
            rest->lines[query.Text(1)].push_back(std::move(value));
        } else if (what == DueText) {
            rest->texts.push_back(std::move(value));
        } else if (what == DueProject) {
            rest->project = std::move(value);
        }
    }
    return rest;
}

void ForgetJournal::Finish()
{
    auto& database = mStore->Database();
    database.Execute("PRAGMA secure_delete = ON");
    database.Atomically([&] { Query(database, "DELETE FROM forget_due WHERE what <> ?").Bind(DueWipe).Run(); });
    // Written anew as a whole, since rows that were deleted or changed before may have left something behind.
    database.Execute("VACUUM");
    {
        Query checkpoint(database, "PRAGMA wal_checkpoint(TRUNCATE)");
        if (checkpoint.Step() && checkpoint.Int(0) != 0) {
            throw Failure(Error::PermissionDenied, "another process reads the mailbox " + database.Path());
        }
    }
    database.Atomically([&] { Query(database, "DELETE FROM forget_due").Run(); });
}

void ForgetJournal::DeleteRows(const ForgetOrder& order)
{
    auto& database = mStore->Database();
    const auto each = [&database](const std::vector<std::int64_t>& rows, const std::string& sql) {
        for (const auto row : rows) {
            Query(database, sql).Bind(row).Run();
        }
    };
    mStore->Table().RetireRows();
    each(order.items, "DELETE FROM item WHERE id = ?");
    each(order.steps, "DELETE FROM step WHERE id = ?");
    each(order.drafts, "DELETE FROM draft WHERE id = ?");
    for (const auto& rules : order.rules) {
        Query query(database, "UPDATE step SET rules_before = ?, rules_after = ? WHERE id = ?");
        BindOrNull(query, rules.before);
        BindOrNull(query, rules.after);
        query.Bind(rules.step).Run();
    }
}

void ForgetJournal::KeepDue(const ForgetOrder& order)
{
    AddDue(DueWipe, "", "");
    for (const auto& [day, lines] : order.lines) {
        for (const auto& text : lines.texts) {
            AddDue(DueLine, day, text);
        }
    }
    for (const auto& text : order.texts) {
        AddDue(DueText, "", text);
    }
    if (!order.project.empty()) {
        AddDue(DueProject, "", order.project);
    }
}

void ForgetJournal::AddDue(const std::string& what, const std::string& day, const std::string& text)
{
    Query(mStore->Database(), "INSERT INTO forget_due (what, day, value) VALUES (?, ?, ?)")
        .Bind(what)
        .Bind(day)
        .Bind(text)
        .Run();
}

void ForgetJournal::ForgetLines(const std::string& dayKey, const ForgetOrder::Lines& lines)
{
    LineMemory::Drop(*mStore, dayKey, lines.reached);
    Query(mStore->Database(), "UPDATE import_position SET lines = max(0, lines - ?) WHERE day = ?")
        .Bind(lines.beforePosition)
        .Bind(dayKey)
        .Run();
}

}
