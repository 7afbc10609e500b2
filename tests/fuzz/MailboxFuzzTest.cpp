#include "base/Failure.h"
#include "fuzz/FuzzTarget.h"
#include "host/store/MailboxError.h"
#include "host/store/StepJournal.h"
#include "host/store/StoreImportJournal.h"
#include "host/system/IcuLocaleFormats.h"
#include "platform/objectmodel/Views.h"
#include "support/TempFolder.h"
#include "support/TestMailbox.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <functional>

namespace tempodial {

namespace {

const TempFolder& MailboxFolder()
{
    static const TempFolder folder(TempFolder::InMemory());
    return folder;
}

/// A sync of a day with one line, which doesn't come to write its history.
void Import(const Ref<Mailbox>& mailbox)
{
    constexpr auto Day = "20061010";
    StoreImportJournal journal(mailbox);
    journal.Begin();
    const auto count = journal.BeginDay(Day, -1);
    static_cast<void>(journal.Committed(Day));
    if (!journal.IsKnown("line")) {
        journal.Reached(1, true);
        journal.Loaded(Day, { count, 1 });
    }
    journal.End();
}

Date StepMoment()
{
    return Date::FromParts({ 2006, 10, 10, 12, 0, 0 });
}

/// A step that changes an item and the rules.
void ChangeInAStep(const Ref<Mailbox>& mailbox, const Ref<AppointmentItem>& item)
{
    StepJournal journal(mailbox);
    std::string rules = "before";
    journal.Begin(StepMoment(), "edit", [&] { return rules; });
    item->SetSubject("changed");
    item->Save();
    rules = "after";
    journal.End();
}

/// Takes the newest step back.
void Undo(const Ref<Mailbox>& mailbox)
{
    StepJournal journal(mailbox);
    for (const auto& step : journal.Newest(StepMoment(), 10)) {
        journal.Preview(step);
    }
    if (const auto step = journal.NewestInForce(StepMoment())) {
        journal.Begin(StepMoment(), "undo", [] { return std::string(); });
        journal.TakeBack(*step, StepMoment());
        journal.End();
    }
}

/// A mailbox with something in each of its tables.
std::string SoundMailbox()
{
    const auto path = MailboxFolder().Path("sound.db");
    {
        const auto mailbox = OpenTestMailbox(path);
        const auto calendar = mailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Calendar);
        const auto log = calendar->Folders()->Add("Tempodial", DefaultFolder::Calendar);
        log->Folders()->Add("Below", DefaultFolder::Calendar);
        mailbox->SetView(log, "Own", ViewType::Table, "<view type=\"table\"><viewname>Own</viewname></view>");
        const FormTemplate form { "IPM.Appointment.A", "A", { { "Project", PropertyType::Text, "x" } }, "page" };
        for (int index = 0; index < 6; ++index) {
            const auto item = mailbox->NewItem(log, form);
            item->SetSubject("item " + std::to_string(index));
            item->SetStart(Date::FromParts({ 2006, 10, 10, 9, index, 0 }));
            item->SetEnd(item->Start().AddMinutes(5));
            item->UserProperties()->Add("Day", PropertyType::DateTime, true)->SetValue(item->Start().Day());
            item->UserProperties()->Add("ApplyPast", PropertyType::YesNo, true)->SetValue(false);
            item->SetBody("body");
            item->Save();
            if (index == 0) {
                ChangeInAStep(mailbox, item);
            }
        }
        mailbox->NewItem(log, form)->FormDescription()->PublishForm(FormRegistry::Personal);
        Import(mailbox);
        mailbox->Drafts().Save({ { "a@b.example" }, "subject", "<p>", true, { { "a.txt", "content", "text/plain" } } });
    }
    return MailboxFolder().Read("sound.db");
}

/// Takes an input apart, from its begin on; behind its end there are zeros.
class Bytes
{
public:
    explicit Bytes(std::string_view input)
        : mRest(input)
    {
    }

    bool IsEnd() const { return mRest.empty(); }
    std::size_t Next(int count)
    {
        std::size_t number = 0;
        for (; count > 0; --count) {
            number <<= 8;
            if (!mRest.empty()) {
                number |= static_cast<unsigned char>(mRest.front());
                mRest.remove_prefix(1);
            }
        }
        return number;
    }
    std::string Text(std::size_t length)
    {
        std::string text(mRest.substr(0, length));
        mRest.remove_prefix(text.size());
        return text;
    }

private:
    std::string_view mRest;
};

/// A column, by the name of its table and its own.
struct Column
{
    const char* table;
    const char* name;
};

constexpr std::array<Column, 40> Columns { { { "folder", "id" }, { "folder", "parent" }, { "folder", "name" },
    { "folder", "kind" }, { "folder", "role" }, { "folder_field", "folder" }, { "folder_field", "name" },
    { "folder_field", "type" }, { "item", "id" }, { "item", "folder" }, { "item", "kind" }, { "item", "message_class" },
    { "item", "starts" }, { "item", "ends" }, { "item", "span" }, { "item", "properties" }, { "view", "folder" },
    { "view", "name" }, { "view", "type" }, { "view", "xml" }, { "form", "message_class" }, { "form", "fields" },
    { "draft", "id" }, { "draft", "recipients" }, { "draft_attachment", "position" }, { "draft_attachment", "type" },
    { "import_position", "day" }, { "mailbox", "id" }, { "mailbox", "last_item" }, { "import_line", "day" },
    { "import_line", "last_count" }, { "import_line", "hashes" }, { "item", "revision" }, { "step", "moment" },
    { "step", "undoes" }, { "step", "rules_before" }, { "step_item", "step" }, { "step_item", "item" },
    { "step_item", "left_revision" }, { "step_item", "properties" } } };

/// Changes and deletes rows as somebody with another program can, whom neither checks nor references hold back.
void ChangeRows(const std::string& path, Bytes& bytes)
{
    sqlite3* connection = nullptr;
    sqlite3_open(path.c_str(), &connection);
    const auto run = [&](const std::string& sql) { sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr); };
    run("PRAGMA ignore_check_constraints = ON; PRAGMA synchronous = OFF; BEGIN");
    while (!bytes.IsEnd()) {
        const auto& column = Columns[bytes.Next(1) % Columns.size()];
        const auto row = std::to_string(bytes.Next(1) % 10);
        const std::string from = std::string(" FROM ") + column.table + " LIMIT 1 OFFSET " + row;
        const std::string where = std::string(" WHERE ") + column.name + " = (SELECT " + column.name + from + ")";
        const auto kind = bytes.Next(1) % 5;
        std::string value = "NULL";
        if (kind == 0) {
            value = std::to_string(bytes.Next(1) % 16);
        } else if (kind == 1) {
            value = std::to_string(static_cast<std::int64_t>(bytes.Next(8)));
        } else if (kind == 2) {
            value = "CAST(x'";
            for (const char character : bytes.Text(bytes.Next(1))) {
                constexpr std::string_view digits = "0123456789abcdef";
                const auto byte = static_cast<unsigned char>(character);
                value += digits[byte >> 4];
                value += digits[byte & 15];
            }
            value += "' AS TEXT)";
        } else if (kind == 3) {
            run(std::string("DELETE FROM ") + column.table + where);
            continue;
        }
        std::string update = "UPDATE OR IGNORE ";
        update.append(column.table).append(" SET ").append(column.name).append(" = ").append(value).append(where);
        run(update);
    }
    run("COMMIT");
    sqlite3_close(connection);
}

/// Runs what may fail as a statement of the product does.
template <class Statement> void Try(Statement&& statement)
{
    try {
        statement();
    } catch (const Failure&) {
    }
}

void ReadItems(const Ref<MAPIFolder>& folder)
{
    const auto items = folder->Items();
    Try([&] { items->Sort("[Start]", true); });
    const auto count = std::min(items->Count(), 20);
    for (std::int32_t index = 1; index <= count; ++index) {
        Try([&] {
            const auto item = items->Item(index).As<AppointmentItem>();
            Try([&] { item->UserProperties()->Item("Day")->Value().ToDate().HourMinute(); });
            Try([&] { item->UserProperties()->Item("Project")->Value(); });
            Try([&] { item->Duration(); });
            Try([&] { IcuLocaleFormats("en_US").General(item->Start()); });
            item->SetSubject(item->Subject() + item->Start().DayKey() + item->End().HourMinute());
            item->Save();
        });
    }
    Try([&] { folder->Items()->Restrict("[Start] >= '10/10/2006 9:00 AM' and [Project] = 'x'")->Count(); });
    Try([&] { folder->Items()->Find("[Day] = '10/10/2006 9:00 AM' or [ApplyPast] = True"); });
}

void ReadViews(const Ref<MAPIFolder>& folder)
{
    const auto views = folder->Views();
    for (std::int32_t index = 1; index <= std::min(views->Count(), 5); ++index) {
        const auto view = views->Item(index);
        Try([&] { view->SetXML(view->XML()); });
        view->Save();
    }
}

void ReadFolder(const Ref<Mailbox>& mailbox, const Ref<MAPIFolder>& folder, int level)
{
    Hold(level < 40, "folders don't go round in circles");
    Try([&] { mailbox->PathOf(folder); });
    Try([&] { folder->FullFolderPath(); });
    Try([&] { ReadItems(folder); });
    Try([&] { ReadViews(folder); });
    const auto below = folder->Folders();
    for (std::int32_t index = 1; index <= below->Count(); ++index) {
        ReadFolder(mailbox, below->Item(index), level + 1);
    }
}

void ReadMailbox(const Ref<Mailbox>& mailbox)
{
    const auto stores = mailbox->NameSpace()->Folders();
    Hold(stores->Count() == 1, "a mailbox has one store");
    ReadFolder(mailbox, stores->Item(1), 0);
    Try([&] { mailbox->FormOf("IPM.Appointment.A"); });
    Try([&] {
        for (const auto row : mailbox->Drafts().All()) {
            Try([&] { mailbox->Drafts().Get(row); });
        }
    });
    Try([&] { Import(mailbox); });
    Try([&] { Undo(mailbox); });
    Try([&] { NewTestItem(mailbox, "new")->Save(); });
    Try([&] {
        const auto log = mailbox->FolderByPath("Calendar/Tempodial");
        mailbox->MoveFolder(log, mailbox->NameSpace()->GetDefaultFolder(DefaultFolder::Inbox));
        mailbox->DeleteFolder(log);
    });
}

/// A mailbox is damaged, opened and worked with. The first byte says how it is damaged.
void DamageAndOpen(std::string_view input)
{
    static const auto sound = SoundMailbox();
    Bytes bytes(input);
    const auto damage = bytes.Next(1) % 4;
    auto content = sound;
    if (damage == 0) {
        while (!bytes.IsEnd()) {
            const auto offset = bytes.Next(3);
            content[offset % content.size()] = static_cast<char>(bytes.Next(1));
        }
    } else if (damage == 1) {
        content.resize(bytes.Next(3) % content.size());
    }
    const auto path = MailboxFolder().Write("mailbox.db", content);
    for (const auto* suffix : { "-wal", "-shm" }) {
        std::filesystem::remove(path + suffix);
    }
    if (damage >= 2) {
        ChangeRows(path, bytes);
    }
    if (damage == 3) {
        static_cast<void>(MailboxFolder().Write("mailbox.db-wal", "x"));
    }
    const auto before = MailboxFolder().Read("mailbox.db");
    Ref<Mailbox> mailbox;
    try {
        mailbox = OpenTestMailbox(path);
    } catch (const MailboxError& error) {
        Hold(std::string(error.what()).find(path) != std::string::npos,
            "a mailbox that is refused is named: " + std::string(error.what()));
        Hold(MailboxFolder().Read("mailbox.db") == before, "a mailbox that is refused stays as it is");
        return;
    }
    try {
        ReadMailbox(mailbox);
    } catch (const Failure&) { // What opens may still fail where it is damaged.
    }
}

}

TEMPODIAL_FUZZ_TARGET(Mailbox, DamageAndOpen)

}
