#include "host/store/MailboxSchema.h"

#include "base/Fnv1a.h"
#include "base/Text.h"
#include "host/store/ItemSpan.h"
#include "host/store/MailboxDatabase.h"
#include "host/store/MailboxError.h"
#include "host/store/MailboxFile.h"
#include "host/store/Query.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

std::string Tables()
{
    return R"(
CREATE TABLE mailbox (
    id TEXT NOT NULL,
    last_item INTEGER NOT NULL
) STRICT;
CREATE TABLE folder (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    parent INTEGER REFERENCES folder (id) ON DELETE CASCADE,
    name TEXT NOT NULL,
    kind INTEGER NOT NULL,
    role INTEGER UNIQUE
) STRICT;
CREATE INDEX folder_parent ON folder (parent);
CREATE TABLE folder_field (
    folder INTEGER NOT NULL REFERENCES folder (id) ON DELETE CASCADE,
    name TEXT NOT NULL,
    type INTEGER NOT NULL,
    PRIMARY KEY (folder, name)
) STRICT, WITHOUT ROWID;
CREATE TABLE item (
    id INTEGER PRIMARY KEY,
    folder INTEGER NOT NULL REFERENCES folder (id) ON DELETE CASCADE,
    kind INTEGER NOT NULL,
    message_class TEXT NOT NULL,
    starts INTEGER NOT NULL,
    ends INTEGER NOT NULL CHECK (ends >= starts),
    span INTEGER NOT NULL CHECK (span = )"
        + ItemSpan::ClassSql("ends - starts") + R"(),
    recurring INTEGER NOT NULL,
    subject TEXT NOT NULL,
    mileage TEXT NOT NULL,
    billing TEXT NOT NULL,
    properties TEXT NOT NULL,
    body TEXT NOT NULL
) STRICT;
CREATE INDEX item_span ON item (folder, span, starts);
CREATE INDEX item_end ON item (folder, ends);
CREATE TABLE view (
    id INTEGER PRIMARY KEY,
    folder INTEGER NOT NULL REFERENCES folder (id) ON DELETE CASCADE,
    name TEXT NOT NULL,
    type INTEGER NOT NULL,
    xml TEXT NOT NULL,
    UNIQUE (folder, name)
) STRICT;
CREATE TABLE form (
    message_class TEXT NOT NULL PRIMARY KEY,
    display_name TEXT NOT NULL,
    fields TEXT NOT NULL,
    page TEXT NOT NULL
) STRICT;
CREATE TABLE draft (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    subject TEXT NOT NULL,
    body TEXT NOT NULL,
    is_html INTEGER NOT NULL CHECK (is_html IN (0, 1)),
    recipients TEXT NOT NULL
) STRICT;
CREATE TABLE draft_attachment (
    draft INTEGER NOT NULL REFERENCES draft (id) ON DELETE CASCADE,
    position INTEGER NOT NULL,
    name TEXT NOT NULL,
    type TEXT NOT NULL,
    content BLOB NOT NULL,
    PRIMARY KEY (draft, position)
) STRICT;
CREATE TABLE import_position (
    day TEXT NOT NULL PRIMARY KEY,
    count INTEGER NOT NULL,
    lines INTEGER NOT NULL
) STRICT;
)";
}

std::string DefaultFolderSql(const std::string& name, DefaultFolder role, DefaultFolder kind)
{
    const auto number = [](DefaultFolder folder) { return std::to_string(static_cast<std::int32_t>(folder)); };
    return "INSERT INTO folder (parent, name, kind, role) SELECT id, '" + name + "', " + number(kind) + ", "
        + number(role) + " FROM folder WHERE parent IS NULL;\n"
        + "INSERT INTO view (folder, name, type, xml) SELECT id, '" + MailboxSchema::FirstViewName(kind) + "', "
        + (kind == DefaultFolder::Calendar ? "2" : "0") + ", '"
        + MailboxSchema::ViewDefinition(kind, MailboxSchema::FirstViewName(kind))
        + "' FROM folder WHERE role = " + number(role) + ";\n";
}

std::string Contents()
{
    return "INSERT INTO mailbox VALUES (lower(hex(randomblob(16))), 0);\n"
           "INSERT INTO folder (parent, name, kind, role) VALUES (NULL, 'Mailbox', 6, NULL);\n"
        + DefaultFolderSql("Inbox", DefaultFolder::Inbox, DefaultFolder::Inbox)
        + DefaultFolderSql("Calendar", DefaultFolder::Calendar, DefaultFolder::Calendar)
        + DefaultFolderSql("Drafts", DefaultFolder::Drafts, DefaultFolder::Inbox);
}

/// Folders of one parent have different names. Of those that don't yet the younger ones get their row behind the name;
/// one that meets another even so keeps its name with a key of its own, which no name has.
std::string UniqueNames()
{
    const std::string hasNamesake = " WHERE EXISTS (SELECT 1 FROM folder AS older WHERE older.parent = folder.parent "
                                    "AND older.id < folder.id AND older.folded_name = folder.folded_name);\n";
    return "ALTER TABLE folder ADD COLUMN folded_name TEXT NOT NULL DEFAULT '';\n"
           "UPDATE folder SET folded_name = fold_text(name);\n"
           "UPDATE folder SET name = name || ' (' || id || ')'"
        + hasNamesake + "UPDATE folder SET folded_name = fold_text(name);\n"
        + "UPDATE folder SET folded_name = folded_name || '/' || id" + hasNamesake
        + "CREATE UNIQUE INDEX folder_name ON folder (parent, folded_name);\n"
          "DROP INDEX folder_parent;\n";
}

/// A table, an index, or whatever else the schema of a mailbox holds: what it is and is called, and how it was made.
using Object = std::pair<std::string, std::string>;

std::vector<Object> ObjectsOf(MailboxDatabase& database)
{
    std::vector<Object> objects;
    Query query(database,
        "SELECT coalesce(type, '') || ' ' || coalesce(name, ''), coalesce(tbl_name, '') || ' ' || coalesce(sql, '') "
        "FROM sqlite_schema");
    while (query.Step()) {
        objects.emplace_back(query.Text(0), query.Text(1));
    }
    std::sort(objects.begin(), objects.end());
    return objects;
}

/// The lines of the tracker's files that imports have reached, eight bytes each, some of a day in one row.
std::string ReachedLines()
{
    return "CREATE TABLE import_line (day TEXT NOT NULL, last_count INTEGER NOT NULL, hashes BLOB NOT NULL) STRICT;\n"
           "CREATE INDEX import_line_day ON import_line (day);\n";
}

/// What is to be forgotten outside of the mailbox: lines of the tracker's files of a day, texts that no other line may
/// hold, a project of the list. And that the file is to be freed of what went.
std::string DueToBeForgotten()
{
    return "CREATE TABLE forget_due (what TEXT NOT NULL, day TEXT NOT NULL, value TEXT NOT NULL) STRICT;\n";
}

/// What an item has besides its fields: when it was last saved, in UTC, nothing for those from before; whether a person
/// chose its project; and a number for each of the states it was in. And the steps, what each command changed: an item
/// as it was before, nothing where there was none, and the state in which the step left it, nothing where it left none.
std::string StepsOfCommands()
{
    return R"(
ALTER TABLE item ADD COLUMN saved INTEGER;
ALTER TABLE item ADD COLUMN by_hand INTEGER NOT NULL DEFAULT 0 CHECK (by_hand IN (0, 1));
ALTER TABLE item ADD COLUMN revision INTEGER NOT NULL DEFAULT 0;
ALTER TABLE mailbox ADD COLUMN last_step INTEGER NOT NULL DEFAULT 0;
CREATE TABLE step (
    id INTEGER PRIMARY KEY,
    moment INTEGER NOT NULL,
    command TEXT NOT NULL,
    undoes INTEGER,
    is_taken_back INTEGER NOT NULL DEFAULT 0 CHECK (is_taken_back IN (0, 1)),
    rules_before TEXT,
    rules_after TEXT,
    are_rules_due INTEGER NOT NULL DEFAULT 0 CHECK (are_rules_due IN (0, 1))
) STRICT;
CREATE TABLE step_item (
    step INTEGER NOT NULL REFERENCES step (id) ON DELETE CASCADE,
    item INTEGER NOT NULL,
    left_revision INTEGER,
    folder INTEGER,
    kind INTEGER,
    message_class TEXT,
    starts INTEGER,
    ends INTEGER,
    span INTEGER,
    recurring INTEGER,
    subject TEXT,
    mileage TEXT,
    billing TEXT,
    properties TEXT,
    body TEXT,
    by_hand INTEGER,
    revision INTEGER,
    PRIMARY KEY (step, item)
) STRICT;
)";
}

/// What the history said when the import began that wrote a position, nothing when there was none: as long as it says
/// that, the position holds.
std::string HistoryOfPositions()
{
    return "ALTER TABLE import_position ADD COLUMN history TEXT;\n";
}

/// Of the tables and indices that all steps make: they are told by it, since making them again takes milliseconds.
constexpr std::uint64_t CurrentFingerprint = 0x56fa48ec07e76de1;

bool IsCurrent(const std::vector<Object>& objects)
{
    constexpr std::string_view End("\0", 1);
    Fnv1a fingerprint;
    for (const auto& [name, sql] : objects) {
        for (const std::string_view part : { std::string_view(name), End, std::string_view(sql), End }) {
            fingerprint.Add(part);
        }
    }
    return fingerprint.Hash() == CurrentFingerprint;
}

}

const std::vector<std::string>& MailboxSchema::Steps()
{
    static const std::vector<std::string> steps = { Tables() + Contents(), UniqueNames(), ReachedLines(),
        StepsOfCommands(), DueToBeForgotten(), HistoryOfPositions() };
    return steps;
}

void MailboxSchema::Migrate(MailboxDatabase& database, const std::vector<std::string>& steps)
{
    const auto version = static_cast<std::size_t>(database.Number("PRAGMA user_version"));
    if (version > steps.size()) {
        throw MailboxError("the mailbox " + database.Path()
            + " comes from a newer version of Tempodial (mailbox version " + std::to_string(version)
            + "): use that version, or a newer one");
    }
    if (version == steps.size()) {
        return;
    }
    database.Atomically([&] {
        for (auto step = version; step < steps.size(); ++step) {
            database.Execute(steps[step]);
        }
        database.Execute("PRAGMA application_id = " + std::to_string(MailboxFile::ApplicationId));
        database.Execute("PRAGMA user_version = " + std::to_string(steps.size()));
    });
}

void MailboxSchema::Check(MailboxDatabase& database)
{
    const auto version = static_cast<std::size_t>(database.Number("PRAGMA user_version"));
    if (version > Steps().size()) {
        return; // Nobody knows how it was made; `Migrate` refuses it.
    }
    const auto found = ObjectsOf(database);
    if (version == Steps().size() && IsCurrent(found)) {
        return;
    }
    MailboxDatabase model(":memory:");
    Migrate(model, { Steps().begin(), Steps().begin() + static_cast<std::ptrdiff_t>(version) });
    const auto expected = ObjectsOf(model);
    std::vector<Object> others;
    std::set_symmetric_difference(
        expected.begin(), expected.end(), found.begin(), found.end(), std::back_inserter(others));
    if (!others.empty()) {
        throw MailboxError("the mailbox " + database.Path() + " isn't as the program made it (" + others.front().first
            + "): move it away and put a good copy of the mailbox in its place, or start with a new mailbox");
    }
}

bool MailboxSchema::IsToldByFingerprint(MailboxDatabase& database)
{
    return IsCurrent(ObjectsOf(database));
}

std::string MailboxSchema::FirstViewName(DefaultFolder kind)
{
    return kind == DefaultFolder::Calendar ? "Calendar" : "Messages";
}

std::string MailboxSchema::ViewDefinition(DefaultFolder kind, const std::string& name)
{
    const auto title = "<viewname>" + Replace(Replace(name, "&", "&amp;"), "<", "&lt;") + "</viewname>";
    if (kind == DefaultFolder::Calendar) {
        return "<?xml version=\"1.0\"?>\n<view type=\"calendar\">" + title
            + "<mode>0</mode><displaytimeunits>30</displaytimeunits></view>";
    }
    return "<?xml version=\"1.0\"?>\n<view type=\"table\">" + title
        + "<column><heading>Subject</heading><prop>urn:schemas:httpmail:subject</prop><type>string</type></column></"
          "view>";
}

}
