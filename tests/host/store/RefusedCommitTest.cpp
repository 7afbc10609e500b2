#include "platform/objectmodel/Views.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <vector>

namespace tempodial {

namespace {

constexpr auto FormClass = "IPM.Appointment.Form";
constexpr auto OwnView = "<view type=\"table\"><a/></view>";
constexpr std::int32_t Refused = 440;

/// Whatever writes to a mailbox.
struct Writer
{
    std::string name;
    std::function<void(const Ref<Mailbox>& mailbox)> write;
};

void PrintTo(const Writer& writer, std::ostream* stream)
{
    *stream << writer.name;
}

Ref<MAPIFolder> Log(const Ref<Mailbox>& mailbox)
{
    return mailbox->FolderByPath("Calendar/Log");
}

Ref<AppointmentItem> FirstItem(const Ref<Mailbox>& mailbox)
{
    return Log(mailbox)->Items()->Item(1).As<AppointmentItem>();
}

void Publish(const Ref<Mailbox>& mailbox, const std::string& displayName)
{
    const FormTemplate form { FormClass, displayName, {}, "page" };
    mailbox->NewItem(Log(mailbox), form)->FormDescription()->PublishForm(FormRegistry::Personal);
}

MailDraft Draft(const std::string& subject)
{
    MailDraft draft;
    draft.subject = subject;
    draft.attachments = { { "a.txt", "content", "text/plain" } };
    return draft;
}

std::vector<Writer> Writers()
{
    return {
        { "AddFolder", [](const auto& mailbox) { Log(mailbox)->Folders()->Add("New", DefaultFolder::Calendar); } },
        { "RenameFolder", [](const auto& mailbox) { mailbox->RenameFolder(Log(mailbox)->Folders()->Item(1), "x"); } },
        { "MoveFolder",
            [](const auto& mailbox) {
                mailbox->MoveFolder(Log(mailbox)->Folders()->Item(1), mailbox->FolderByPath("Inbox"));
            } },
        { "DeleteFolder", [](const auto& mailbox) { mailbox->DeleteFolder(Log(mailbox)); } },
        { "AddField",
            [](const auto& mailbox) { FirstItem(mailbox)->UserProperties()->Add("Other", PropertyType::Text, true); } },
        { "SaveNewItem", [](const auto& mailbox) { NewTestItem(mailbox, "new")->Save(); } },
        { "SaveChangedItem",
            [](const auto& mailbox) {
                const auto item = FirstItem(mailbox);
                item->SetEnd(item->End().AddMinutes(5));
                item->Save();
            } },
        { "MoveItem", [](const auto& mailbox) { FirstItem(mailbox)->Move(mailbox->FolderByPath("Inbox")); } },
        { "DeleteItem", [](const auto& mailbox) { FirstItem(mailbox)->Delete(); } },
        { "SetNewView",
            [](const auto& mailbox) { mailbox->SetView(Log(mailbox), "New", ViewType::Table, "<view/>"); } },
        { "SetKnownView",
            [](const auto& mailbox) { mailbox->SetView(Log(mailbox), "Own", ViewType::Table, "<view/>"); } },
        { "SaveView",
            [](const auto& mailbox) {
                const auto view = Log(mailbox)->Views()->ItemNamed("Own");
                view->SetXML("<view/>");
                view->Save();
            } },
        { "DeleteView", [](const auto& mailbox) { mailbox->DeleteView(Log(mailbox), "Own"); } },
        { "PublishForm", [](const auto& mailbox) { Publish(mailbox, "Changed"); } },
        { "SaveDraft", [](const auto& mailbox) { mailbox->Drafts().Save(Draft("new")); } },
        { "UpdateDraft", [](const auto& mailbox) { mailbox->Drafts().Update(1, Draft("changed")); } },
        { "DeleteDraft", [](const auto& mailbox) { mailbox->Drafts().Delete(1); } },
    };
}

void DescribeFolder(const Ref<Mailbox>& mailbox, const Ref<MAPIFolder>& folder, std::string& text)
{
    text += mailbox->PathOf(folder) + " " + folder->EntryID() + "\n";
    text += FailureNumber([&] { folder->Items()->Find("[Other] = \"\""); }) == 0 ? "knows Other\n" : "";
    const auto views = folder->Views();
    for (std::int32_t index = 1; index <= views->Count(); ++index) {
        text += "view " + views->Item(index)->Name() + " " + views->Item(index)->XML() + "\n";
    }
    const auto items = folder->Items();
    for (std::int32_t index = 1; index <= items->Count(); ++index) {
        const auto item = items->Item(index).As<AppointmentItem>();
        text += "item " + item->EntryID() + " " + item->Subject() + " " + item->End().HourMinute() + "\n";
    }
    const auto below = folder->Folders();
    for (std::int32_t index = 1; index <= below->Count(); ++index) {
        DescribeFolder(mailbox, below->Item(index), text);
    }
}

/// All that a mailbox shows.
std::string Content(const Ref<Mailbox>& mailbox)
{
    std::string text;
    DescribeFolder(mailbox, mailbox->FolderByPath(""), text);
    text += "form " + mailbox->FormOf(FormClass)->displayName + "\n";
    for (const auto row : mailbox->Drafts().All()) {
        text += "draft " + mailbox->DraftId(row) + " " + mailbox->Drafts().Get(row).subject + "\n";
    }
    return text;
}

}

/// A mailbox that refuses to commit: what is in memory stays what is in the file.
class RefusedCommitTest : public testing::TestWithParam<Writer>
{
protected:
    RefusedCommitTest()
    {
        const auto log = mMailbox->FolderByPath("Calendar")->Folders()->Add("Log", DefaultFolder::Calendar);
        log->Folders()->Add("Below", DefaultFolder::Calendar);
        const auto item = log->Items()->Add("IPM.Appointment");
        item->SetSubject("first");
        item->Save();
        mMailbox->SetView(log, "Own", ViewType::Table, OwnView);
        Publish(mMailbox, "Form");
        mMailbox->Drafts().Save(Draft("kept"));

        auto& database = TestDatabase(mMailbox);
        database.Execute("CREATE TEMP TABLE refusing (yes INTEGER);"
                         "CREATE TEMP TABLE refused (id INTEGER PRIMARY KEY, other INTEGER REFERENCES refused (id) "
                         "DEFERRABLE INITIALLY DEFERRED)");
        for (const std::string table : { "folder", "folder_field", "item", "view", "form", "draft" }) {
            for (const std::string change : { "INSERT", "UPDATE", "DELETE" }) {
                database.Execute("CREATE TEMP TRIGGER " + table + change + " AFTER " + change + " ON " + table
                    + " WHEN EXISTS (SELECT 1 FROM refusing) BEGIN INSERT INTO refused (other) VALUES (-1); END");
            }
        }
    }
    /// Lets every commit fail, after its statements have succeeded, or none any more.
    void Refuse(bool refuses) const
    {
        TestDatabase(mMailbox).Execute(refuses ? "INSERT INTO refusing VALUES (1)" : "DELETE FROM refusing");
    }
    std::string ContentOnDisk() const { return Content(OpenTestMailbox(mPath)); }

    TempFolder mFolder;
    std::string mPath = mFolder.Path("mailbox.db");
    Ref<Mailbox> mMailbox = OpenTestMailbox(mPath);
};

TEST_P(RefusedCommitTest, Write_ChangesNothingAndSucceedsLater)
{
    const auto& writer = GetParam();
    const auto before = Content(mMailbox);
    ASSERT_EQ(ContentOnDisk(), before);
    Refuse(true);
    EXPECT_EQ(FailureNumber([&] { writer.write(mMailbox); }), Refused);
    EXPECT_EQ(Content(mMailbox), before);
    EXPECT_EQ(ContentOnDisk(), before);
    Refuse(false);
    writer.write(mMailbox);
    const auto after = Content(mMailbox);
    EXPECT_NE(after, before);
    EXPECT_EQ(ContentOnDisk(), after);
}

INSTANTIATE_TEST_SUITE_P(
    Writers, RefusedCommitTest, testing::ValuesIn(Writers()), [](const auto& writer) { return writer.param.name; });

using RefusedCommitOnceTest = RefusedCommitTest;

TEST_F(RefusedCommitOnceTest, DeleteFolder_ItsNameIsStillInUse)
{
    Refuse(true);
    const auto item = FirstItem(mMailbox);
    EXPECT_EQ(FailureNumber([&] { mMailbox->DeleteFolder(Log(mMailbox)); }), Refused);
    Refuse(false);
    EXPECT_EQ(item->Subject(), "first");
    const auto calendar = mMailbox->FolderByPath("Calendar");
    EXPECT_EQ(FailureNumber([&] { calendar->Folders()->Add("LOG", DefaultFolder::Calendar); }),
        static_cast<std::int32_t>(Error::KeyExists));
}

TEST_F(RefusedCommitOnceTest, SaveAddedView_StaysUnsaved)
{
    const auto view = Log(mMailbox)->Views()->Add("New", ViewType::Table, ViewSaveOption::ThisFolderEveryone);
    Refuse(true);
    EXPECT_EQ(FailureNumber([&] { view->Save(); }), Refused);
    EXPECT_EQ(Log(OpenTestMailbox(mPath))->Views()->Count(), 2);
    Refuse(false);
    view->Save();
    EXPECT_EQ(Log(OpenTestMailbox(mPath))->Views()->Count(), 3);
}

TEST_F(RefusedCommitOnceTest, SaveItem_StaysUnsavedAndIsCountedAsFailed)
{
    const auto item = NewTestItem(mMailbox, "new");
    mMailbox->MarkStatistics();
    Refuse(true);
    EXPECT_EQ(FailureNumber([&] { item->Save(); }), Refused);
    EXPECT_EQ(item->EntryID(), "");
    EXPECT_EQ(mMailbox->Statistics().created, 0);
    EXPECT_EQ(mMailbox->Statistics().failed.size(), 1U);
}

}
