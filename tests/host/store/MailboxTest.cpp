#include "host/store/MailboxDatabase.h"
#include "host/store/StoreFolder.h"
#include "host/store/StoreImportJournal.h"
#include "platform/objectmodel/Views.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

using testing::HasSubstr;

class MailboxTest : public testing::Test
{
protected:
    static constexpr auto NotFound = static_cast<std::int32_t>(Error::ObjectNotFound);

    Ref<Mailbox> mMailbox = OpenTestMailbox();
};

TEST_F(MailboxTest, FolderByPath_FindsFoldersBelowTheStore)
{
    mMailbox->FolderByPath("Calendar")->Folders()->Add("Tempodial", DefaultFolder::Calendar);
    EXPECT_EQ(mMailbox->FolderByPath("calendar/TEMPODIAL")->FullFolderPath(), "\\\\Mailbox\\Calendar\\Tempodial");
    EXPECT_EQ(mMailbox->FolderByPath("")->FullFolderPath(), "\\\\Mailbox");
    EXPECT_EQ(mMailbox->PathOf(mMailbox->FolderByPath("")), "");
    for (const auto* path : { "Absent", "Calendar/Absent", "Calendar//Tempodial", "/Calendar", "Calendar/" }) {
        EXPECT_EQ(FailureNumber([&] { mMailbox->FolderByPath(path); }), NotFound) << path;
    }
}

TEST_F(MailboxTest, Folder_Kind_IsAppointmentsOrMessages)
{
    const auto kind = [](const Ref<MAPIFolder>& folder) { return folder.As<StoreFolder>()->Kind(); };
    EXPECT_EQ(kind(mMailbox->FolderByPath("Calendar")), DefaultFolder::Calendar);
    EXPECT_EQ(kind(mMailbox->FolderByPath("Drafts")), DefaultFolder::Inbox);
    EXPECT_EQ(kind(mMailbox->FolderByPath("Inbox")->Folders()->Add("x", DefaultFolder::Drafts)), DefaultFolder::Inbox);
}

TEST_F(MailboxTest, ItemById_UnknownIdentity_Fails)
{
    const auto item = NewTestItem(mMailbox, "a");
    item->Save();
    auto id = item->EntryID();
    EXPECT_EQ(mMailbox->ItemById(id), item);
    EXPECT_EQ(FailureNumber([&] { mMailbox->ItemById(""); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { mMailbox->ItemById(mMailbox->FolderByPath("Inbox")->EntryID()); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { mMailbox->ItemById(id + "0"); }), NotFound);
    id.back() = 'x';
    EXPECT_EQ(FailureNumber([&] { mMailbox->ItemById(id); }), NotFound);
}

TEST_F(MailboxTest, Number_CountsFromOneAndIsNeverGivenAgain)
{
    const auto first = NewTestItem(mMailbox, "a");
    EXPECT_EQ(first->Number(), 0);
    first->Save();
    EXPECT_EQ(first->Number(), 1);
    const auto second = NewTestItem(mMailbox, "b");
    second->Save();
    EXPECT_EQ(second->Number(), 2);
    second->Delete();
    const auto third = NewTestItem(mMailbox, "c");
    third->Save();
    EXPECT_EQ(third->Number(), 3);
    third->Move(mMailbox->FolderByPath("Inbox"));
    EXPECT_EQ(third->Number(), 3);
}

TEST_F(MailboxTest, SavedAt_IsTheMomentOfTheLastSaveThatChangedSomething)
{
    auto now = Date::FromParts({ 2006, 10, 10, 15, 0, 0 });
    mMailbox->SetClock([&] { return now; });
    auto item = NewTestItem(mMailbox, "a");
    EXPECT_EQ(item->SavedAt(), std::nullopt);
    item->Save();
    EXPECT_EQ(item->SavedAt(), now);
    const auto before = now;
    now = now.AddMinutes(5);
    item->Save();
    item->SetSubject("a");
    item->Save();
    EXPECT_EQ(item->SavedAt(), before);
    item->SetBody("b");
    item->Save();
    EXPECT_EQ(item->SavedAt(), now);
    const auto id = item->EntryID();
    item = nullptr;
    EXPECT_EQ(mMailbox->ItemById(id)->SavedAt(), now);
}

TEST_F(MailboxTest, SavedAt_WithoutAClock_IsUnknown)
{
    auto item = NewTestItem(mMailbox, "a");
    item->Save();
    const auto id = item->EntryID();
    item = nullptr;
    EXPECT_EQ(mMailbox->ItemById(id)->SavedAt(), std::nullopt);
}

TEST_F(MailboxTest, SetProjectByHand_IsSavedWithTheItemAndCopied)
{
    auto item = NewTestItem(mMailbox, "a");
    item->Save();
    EXPECT_FALSE(item->IsProjectByHand());
    item->SetProjectByHand(true);
    EXPECT_TRUE(item->HasChanges());
    item->Save();
    EXPECT_TRUE(item->Copy().As<StoreItem>()->IsProjectByHand());
    const auto id = item->EntryID();
    item = nullptr;
    EXPECT_TRUE(mMailbox->ItemById(id)->IsProjectByHand());
}

TEST_F(MailboxTest, ChoosingProjects_SaysWhoseChoiceTheSavedOnesAre)
{
    const auto item = NewTestItem(mMailbox, "a");
    item->SetMileage("Plan");
    item->Save();
    EXPECT_FALSE(item->IsProjectByHand());
    // A person's choice is one also when it changes nothing.
    mMailbox->ChoosingProjects(ProjectChoice::Person, [&] { item->Save(); });
    EXPECT_TRUE(item->IsProjectByHand());
    item->SetSubject("b");
    item->SetMileage("Plan");
    item->Save();
    EXPECT_TRUE(item->IsProjectByHand());
    mMailbox->ChoosingProjects(ProjectChoice::Nobody, [&] {
        item->SetMileage("Other");
        item->Save();
    });
    EXPECT_TRUE(item->IsProjectByHand());
    item->SetMileage("Plan");
    item->Save();
    EXPECT_FALSE(item->IsProjectByHand());
}

TEST_F(MailboxTest, ProjectByHand_IsAPropertyOfItemsThatHaveTheMark)
{
    const auto item = NewTestItem(mMailbox, "a");
    item->SetProjectByHand(true);
    EXPECT_FALSE(item->UserProperties()->Item("ProjectByHand"));
    StoreImportJournal(mMailbox).SetRemembers(true);
    item->SetProjectByHand(false);
    EXPECT_FALSE(item->UserProperties()->Item("ProjectByHand"));
    item->SetProjectByHand(true);
    const auto mark = item->UserProperties()->Item("projectbyhand");
    EXPECT_EQ(mark->Name(), "ProjectByHand");
    EXPECT_EQ(mark->Value(), Variant(true));
    mark->SetValue(false);
    EXPECT_FALSE(item->IsProjectByHand());
}

TEST_F(MailboxTest, ChoosingProjects_WorkFails_IsOver)
{
    const auto item = NewTestItem(mMailbox, "a");
    EXPECT_THROW(mMailbox->ChoosingProjects(ProjectChoice::Person, [] { throw Failure(Error::InvalidCall); }), Failure);
    item->Save();
    EXPECT_FALSE(item->IsProjectByHand());
}

TEST_F(MailboxTest, SaveAsPerson_OtherProject_IsByHand)
{
    const auto item = NewTestItem(mMailbox, "a");
    item->SetMileage("Plan");
    item->RaiseOpen();
    EXPECT_TRUE(item->SaveAsPerson());
    EXPECT_FALSE(item->IsProjectByHand());
    item->SetSubject("b");
    EXPECT_TRUE(item->SaveAsPerson());
    EXPECT_FALSE(item->IsProjectByHand());
    item->SetMileage("No Project");
    EXPECT_TRUE(item->SaveAsPerson());
    EXPECT_TRUE(item->IsProjectByHand());
    item->SetSubject("c");
    EXPECT_TRUE(item->SaveAsPerson());
    EXPECT_TRUE(item->IsProjectByHand());
    const auto made = NewTestItem(mMailbox, "d");
    made->SetMileage("No Project");
    made->RaiseOpen();
    made->SetMileage("Plan");
    EXPECT_TRUE(made->SaveAsPerson());
    EXPECT_TRUE(made->IsProjectByHand());
}

TEST_F(MailboxTest, NewItem_RecurringItem_StaysRecurring)
{
    ItemData data;
    data.messageClass = "IPM.Appointment";
    data.recurring = true;
    mMailbox->NewItem(mMailbox->FolderByPath("Calendar"), data)->Save();
    EXPECT_TRUE(TestItems(mMailbox)->Find("[IsRecurring] = True").As<AppointmentItem>()->IsRecurring());
}

TEST_F(MailboxTest, Item_NobodyHoldsIt_UnsavedChangesAreGone)
{
    auto item = NewTestItem(mMailbox, "a");
    item->Save();
    item->SetSubject("b");
    const auto id = item->EntryID();
    item = nullptr;
    EXPECT_EQ(mMailbox->ItemById(id)->Subject(), "a");
}

TEST_F(MailboxTest, HasChanges_TellsUnsavedOnes)
{
    const auto item = NewTestItem(mMailbox, "a");
    EXPECT_TRUE(item->HasChanges());
    item->Save();
    EXPECT_FALSE(item->HasChanges());
    item->SetSubject("b");
    EXPECT_TRUE(item->HasChanges());
    item->SetSubject("a");
    EXPECT_FALSE(item->HasChanges());
}

TEST_F(MailboxTest, Display_CallsTheHook)
{
    const auto item = NewTestItem(mMailbox, "a");
    item->Display();
    Ref<StoreItem> displayed;
    mMailbox->SetDisplay([&](const Ref<StoreItem>& shown) { displayed = shown; });
    item->Display();
    EXPECT_EQ(displayed, item);
}

TEST_F(MailboxTest, RaiseOpenAndClose_TellWhetherAHandlerRefused)
{
    const auto item = NewTestItem(mMailbox, "a");
    EXPECT_TRUE(item->RaiseOpen());
    EXPECT_TRUE(item->RaiseClose());
    AppointmentItemEvents events;
    events.Open = [](bool& cancel) { cancel = true; };
    events.Close = [](bool& cancel) { cancel = true; };
    const auto subscription = item->Subscribe(events);
    EXPECT_FALSE(item->RaiseOpen());
    EXPECT_FALSE(item->RaiseClose());
}

TEST_F(MailboxTest, Statistics_CountSavesByWhatTheyChange)
{
    const auto item = NewTestItem(mMailbox, "a");
    item->Save();
    item->SetEnd(item->End().AddMinutes(5));
    item->Save();
    item->SetBody("detail");
    item->Save();
    item->Save();
    EXPECT_EQ(mMailbox->Statistics().created, 1);
    EXPECT_EQ(mMailbox->Statistics().extended, 1);
    EXPECT_EQ(mMailbox->Statistics().detailed, 2);
    EXPECT_TRUE(mMailbox->Statistics().failed.empty());
    mMailbox->MarkStatistics();
    EXPECT_EQ(mMailbox->Statistics().created, 0);
    EXPECT_EQ(mMailbox->Statistics().detailed, 0);
}

TEST_F(MailboxTest, Statistics_FailedSave_IsNamed)
{
    const auto item = NewTestItem(mMailbox, "a");
    AppointmentItemEvents events;
    events.Write = [](bool& cancel) { cancel = true; };
    const auto subscription = item->Subscribe(events);
    EXPECT_NE(FailureNumber([&] { item->Save(); }), 0);
    ASSERT_EQ(mMailbox->Statistics().failed.size(), 1U);
    EXPECT_EQ(mMailbox->Statistics().failed.at(0).subject, "a");
    EXPECT_EQ(mMailbox->Statistics().failed.at(0).message, "The save was refused");
    EXPECT_EQ(mMailbox->Statistics().created, 0);
}

TEST_F(MailboxTest, Save_FullDisk_FailsAndTheItemStaysUnsaved)
{
    const auto item = NewTestItem(mMailbox, "a");
    item->SetBody(std::string(100'000, 'x'));
    FillDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { item->Save(); }), 61);
    EXPECT_EQ(item->EntryID(), "");
    EXPECT_EQ(TestItems(mMailbox)->Count(), 0);
    FreeDisk(mMailbox);
    item->Save();
    EXPECT_EQ(TestItems(mMailbox)->Count(), 1);
}

TEST_F(MailboxTest, Save_FullDiskOnAChange_KeepsTheChangeUnsaved)
{
    const auto item = NewTestItem(mMailbox, "a");
    item->Save();
    FillDisk(mMailbox);
    item->SetBody(std::string(100'000, 'x'));
    EXPECT_EQ(FailureNumber([&] { item->Save(); }), 61);
    EXPECT_TRUE(item->HasChanges());
    item->Close(CloseMode::Discard);
    EXPECT_EQ(item->Body(), "");
}

TEST_F(MailboxTest, Save_LockedByAnother_Fails)
{
    const TempFolder folder;
    const auto mailbox = OpenTestMailbox(folder.Path("mailbox.db"));
    MailboxDatabase other(folder.Path("mailbox.db"));
    TestDatabase(mailbox).Execute("PRAGMA busy_timeout = 0");
    other.Execute("BEGIN IMMEDIATE");
    const auto item = NewTestItem(mailbox, "a");
    EXPECT_EQ(FailureNumber([&] { item->Save(); }), 70);
    other.Execute("ROLLBACK");
    item->Save();
    EXPECT_NE(item->EntryID(), "");
}

TEST_F(MailboxTest, Save_TheRowIsGone_FailsAndTheChangeStaysUnsaved)
{
    const auto item = NewTestItem(mMailbox, "a");
    item->Save();
    mMailbox->MarkStatistics();
    TestDatabase(mMailbox).Execute("DELETE FROM item");
    item->SetSubject("b");
    EXPECT_EQ(FailureNumber([&] { item->Save(); }), NotFound);
    item->SetStart(item->Start().AddMinutes(5));
    EXPECT_EQ(FailureNumber([&] { item->Save(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->Move(mMailbox->FolderByPath("Inbox")); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { mMailbox->Stored(item); }), NotFound);
    EXPECT_TRUE(item->HasChanges());
    EXPECT_EQ(mMailbox->PathOf(item->Parent()), "Calendar");
    EXPECT_EQ(mMailbox->Statistics().failed.size(), 2U);
    EXPECT_EQ(mMailbox->Statistics().extended + mMailbox->Statistics().detailed, 0);
}

TEST_F(MailboxTest, Own_FolderOfAnotherMailbox_Fails)
{
    EXPECT_EQ(mMailbox->Own(mMailbox->FolderByPath("Inbox"))->Name(), "Inbox");
    EXPECT_EQ(FailureNumber([&] { mMailbox->Own(OpenTestMailbox()->FolderByPath("Inbox")); }), NotFound);
}

TEST_F(MailboxTest, Save_OtherFieldsAreChanged_KeepsThePropertiesInTheFile)
{
    auto item = NewTestItem(mMailbox, "a");
    item->UserProperties()->Add("Note", PropertyType::Text, false)->SetValue("kept");
    item->Save();
    const auto inFile = [&](const std::string& condition) {
        return TestDatabase(mMailbox).Number("SELECT count(*) FROM item WHERE " + condition);
    };
    item->SetSubject("b");
    item->Save();
    EXPECT_EQ(inFile("subject = 'b' AND properties LIKE '%\"kept\"%'"), 1);
    item->SetDuration(item->Duration() + 5);
    item->Save();
    EXPECT_EQ(
        inFile("ends - starts = " + std::to_string(item->Duration() * 60) + " AND properties LIKE '%\"kept\"%'"), 1);
    item->UserProperties()->Item("Note")->SetValue("changed");
    item->Save();
    EXPECT_EQ(inFile("properties LIKE '%\"changed\"%'"), 1);
}

TEST_F(MailboxTest, Item_PropertiesThatCanNotBeRead_Fails)
{
    NewTestItem(mMailbox, "a")->Save();
    for (const std::string json : { "", "x", "{", "{\"a\"}", "{\"a\":[9]}", "{\"a\":[1,5]}", "{\"a\":[6,1]}",
             "{\"a\":[1,\"\\q\"]}", "{\"a\":[1,\"x\"]", "{\"a\":[1,\"x\"]}}", "{\"a\":[5,\"x\"]}", "{\"a\":[1,\"x" }) {
        TestDatabase(mMailbox).Execute("UPDATE item SET properties = '" + json + "'");
        EXPECT_EQ(FailureNumber([&] { TestItems(mMailbox)->Item(1); }), 440) << json;
    }
    TestDatabase(mMailbox).Execute("UPDATE item SET properties = ' { \"a\" : [ 1 , \"x\" ] } '");
    EXPECT_EQ(TestItems(mMailbox)->Item(1).As<AppointmentItem>()->UserProperties()->Item("A")->Value(), Variant("x"));
}

TEST_F(MailboxTest, SetView_MakesOrChangesAView)
{
    const auto folder = mMailbox->FolderByPath("Calendar");
    mMailbox->SetView(folder, "List", ViewType::Table, "<view type=\"table\"/>");
    mMailbox->SetView(folder, "list", ViewType::Table, "<view type=\"table\"><a/></view>");
    ASSERT_EQ(folder->Views()->Count(), 2);
    EXPECT_EQ(folder->Views()->Item(2)->Name(), "List");
    EXPECT_EQ(folder->Views()->Item(2)->XML(), "<view type=\"table\"><a/></view>");
    EXPECT_EQ(FailureNumber([&] { mMailbox->SetView(folder, "Other", ViewType::Table, "x"); }), 5);
    EXPECT_EQ(folder->Views()->Count(), 2);
}

TEST_F(MailboxTest, DeleteView_ItsObjectsFail)
{
    const auto folder = mMailbox->FolderByPath("Calendar");
    const auto view = folder->Views()->Item(1);
    mMailbox->DeleteView(folder, "calendar");
    EXPECT_EQ(folder->Views()->Count(), 0);
    EXPECT_EQ(FailureNumber([&] { view->Name(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { view->Save(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { mMailbox->DeleteView(folder, "Calendar"); }), NotFound);
}

TEST_F(MailboxTest, Publish_UnchangedForm_WritesNothing)
{
    const FormTemplate form { "IPM.Appointment.Form", "Form", {}, "page" };
    mMailbox->Store()->Forms().Publish(form);
    const auto written = TestDatabase(mMailbox).Number("SELECT total_changes()");
    mMailbox->Store()->Forms().Publish(form);
    EXPECT_EQ(TestDatabase(mMailbox).Number("SELECT total_changes()"), written);
    mMailbox->Store()->Forms().Publish({ "IPM.Appointment.FORM", "Other", {}, "page" });
    EXPECT_EQ(mMailbox->FormOf("ipm.appointment.form")->displayName, "Other");
    EXPECT_EQ(TestDatabase(mMailbox).Number("SELECT count(*) FROM form"), 1);
}

TEST_F(MailboxTest, Save_NothingChanged_WritesNothing)
{
    const auto item = NewTestItem(mMailbox, "a");
    item->Save();
    const auto written = TestDatabase(mMailbox).Number("SELECT total_changes()");
    item->SetSubject("a");
    item->Save();
    EXPECT_EQ(TestDatabase(mMailbox).Number("SELECT total_changes()"), written);
}

}
