#include "host/windows/HostApplication.h"

#include "platform/objectmodel/FormDescription.h"
#include "platform/objectmodel/Views.h"
#include "support/FailureNumber.h"
#include "support/TestMailbox.h"

#include <gtest/gtest.h>

namespace tempodial {

class HostApplicationTest : public testing::Test
{
protected:
    static constexpr auto Gone = static_cast<std::int32_t>(Error::ServerUnavailable);
    static constexpr auto NotFound = static_cast<std::int32_t>(Error::ObjectNotFound);

    static std::string Form() { return std::string(TEMPODIAL_SHARE_DIR) + "/WorkLogForm.oft"; }

    Ref<Mailbox> mMailbox = OpenTestMailbox();
    Ref<HostApplication> mApplication = MakeRef<HostApplication>(mMailbox);
    Ref<MAPIFolder> mInbox = mMailbox->FolderByPath("Inbox");
    Ref<MAPIFolder> mCalendar = mMailbox->FolderByPath("Calendar");
};

TEST_F(HostApplicationTest, Version_IsTheOneGiven)
{
    EXPECT_EQ(mApplication->Version(), "16.0.0.1");
    EXPECT_EQ(HostApplication(mMailbox, "10.0.2627").Version(), "10.0.2627");
}

TEST_F(HostApplicationTest, GetNamespace_OnlyMapiExists)
{
    EXPECT_EQ(mApplication->GetNamespace("MAPI")->Folders()->Item(1)->Name(), "Mailbox");
    EXPECT_EQ(FailureNumber([&] { mApplication->GetNamespace("Other"); }), 5);
}

TEST_F(HostApplicationTest, Events_ReachTheSubscriber)
{
    int logons = 0;
    int quits = 0;
    ApplicationEvents events;
    events.MapiLogonComplete = [&] { ++logons; };
    events.Quit = [&] { ++quits; };
    auto subscription = mApplication->Subscribe(events);
    mApplication->RaiseMapiLogonComplete();
    mApplication->RaiseQuit();
    EXPECT_EQ(logons, 1);
    EXPECT_EQ(quits, 1);
    subscription.End();
    mApplication->RaiseMapiLogonComplete();
    EXPECT_EQ(logons, 1);
}

TEST_F(HostApplicationTest, Explorers_NoneOpen_GivesNothing)
{
    EXPECT_EQ(mApplication->Explorers()->Count(), 0);
    EXPECT_FALSE(mApplication->ActiveExplorer());
    EXPECT_EQ(FailureNumber([&] { mApplication->Explorers()->Item(1); }), 9);
    EXPECT_EQ(mApplication->Inspectors()->Count(), 0);
    EXPECT_EQ(FailureNumber([&] { mApplication->Inspectors()->Item(1); }), 9);
}

TEST_F(HostApplicationTest, Explorers_TheLastOpenedOrActivated_IsInFront)
{
    const auto first = mApplication->OpenExplorer(mInbox);
    const auto second = mApplication->OpenExplorer(mCalendar);
    EXPECT_EQ(mApplication->Explorers()->Count(), 2);
    EXPECT_EQ(mApplication->Explorers()->Item(1), Ref<Explorer>(first));
    EXPECT_EQ(mApplication->ActiveExplorer(), Ref<Explorer>(second));
    mApplication->ActivateExplorer(first);
    EXPECT_EQ(mApplication->ActiveExplorer(), Ref<Explorer>(first));
    mApplication->CloseExplorer(first);
    EXPECT_EQ(mApplication->Explorers()->Count(), 1);
    EXPECT_EQ(mApplication->ActiveExplorer(), Ref<Explorer>(second));
    mApplication->ActivateExplorer(first);
    EXPECT_EQ(mApplication->ActiveExplorer(), Ref<Explorer>(second));
}

TEST_F(HostApplicationTest, Explorer_Closed_EveryMemberFails)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    mApplication->CloseExplorer(explorer);
    EXPECT_EQ(FailureNumber([&] { explorer->Caption(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->CurrentFolder(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->SetCurrentFolder(mCalendar); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->CurrentView(); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->SetCurrentView("Messages"); }), Gone);
    EXPECT_EQ(FailureNumber([&] { explorer->Selection(); }), Gone);
}

TEST_F(HostApplicationTest, Explorer_CurrentFolder_GoesWhereItIsSent)
{
    const auto explorer = mApplication->OpenExplorer(mInbox);
    EXPECT_EQ(explorer->Caption(), "Inbox - Mailbox");
    explorer->SetCurrentFolder(mCalendar);
    EXPECT_EQ(explorer->CurrentFolder()->EntryID(), mCalendar->EntryID());
    EXPECT_EQ(FailureNumber([&] { explorer->SetCurrentFolder(nullptr); }), 91);
    const auto gone = mCalendar->Folders()->Add("x", DefaultFolder::Calendar);
    mMailbox->DeleteFolder(gone);
    EXPECT_EQ(FailureNumber([&] { explorer->SetCurrentFolder(gone); }), NotFound);
    EXPECT_EQ(explorer->CurrentFolder()->EntryID(), mCalendar->EntryID());
}

TEST_F(HostApplicationTest, Explorer_CurrentView_IsKeptPerFolder)
{
    mCalendar->Views()->Add("List", ViewType::Table, ViewSaveOption::ThisFolderEveryone)->Save();
    const auto explorer = mApplication->OpenExplorer(mCalendar);
    EXPECT_EQ(explorer->CurrentView(), "Calendar");
    explorer->SetCurrentView("list");
    EXPECT_EQ(explorer->CurrentView(), "List");
    explorer->SetCurrentFolder(mInbox);
    EXPECT_EQ(explorer->CurrentView(), "Messages");
    EXPECT_EQ(FailureNumber([&] { explorer->SetCurrentView("List"); }), 5);
    EXPECT_EQ(explorer->CurrentView(), "Messages");
    explorer->SetCurrentFolder(mCalendar);
    EXPECT_EQ(explorer->CurrentView(), "List");
    mMailbox->DeleteView(mCalendar, "List");
    EXPECT_EQ(explorer->CurrentView(), "Calendar");
    mMailbox->DeleteView(mCalendar, "Calendar");
    EXPECT_EQ(explorer->CurrentView(), "");
}

TEST_F(HostApplicationTest, Explorer_Selection_IsAsItWasWhenAskedFor)
{
    const auto explorer = mApplication->OpenExplorer(mCalendar);
    EXPECT_EQ(explorer->Selection()->Count(), 0);
    const auto item = NewTestItem(mMailbox, "a");
    explorer->Select({ item });
    const auto selection = explorer->Selection();
    explorer->Select({});
    ASSERT_EQ(selection->Count(), 1);
    EXPECT_EQ(selection->Item(1)->Subject(), "a");
    EXPECT_EQ(FailureNumber([&] { selection->Item(2); }), 9);
    EXPECT_EQ(FailureNumber([&] { selection->Item(0); }), 9);
    explorer->Select({ item });
    explorer->SetCurrentFolder(mInbox);
    EXPECT_EQ(explorer->Selection()->Count(), 0);
}

TEST_F(HostApplicationTest, CreateItemFromTemplate_GivesAnUnsavedItemOfTheForm)
{
    const auto item = mApplication->CreateItemFromTemplate(Form(), mInbox);
    EXPECT_EQ(item->MessageClass(), "IPM.Appointment.TDActivity1");
    EXPECT_EQ(item->EntryID(), "");
    const auto form = item->FormDescription();
    form->SetDisplayName("Activity");
    form->PublishForm(FormRegistry::Personal);
    EXPECT_EQ(form->MessageClass(), "IPM.Appointment.TDActivity1");
    item->Close(CloseMode::Discard);
    EXPECT_EQ(mInbox->Items()->Count(), 0);

    const auto added = mCalendar->Items()->Add("IPM.Appointment.TDActivity1");
    EXPECT_EQ(added->MessageClass(), "IPM.Appointment.TDActivity1");
    EXPECT_TRUE(added->UserProperties()->Item("ApplyPast"));
    EXPECT_EQ(mMailbox->FormOf("IPM.Appointment.TDActivity1")->displayName, "Activity");
}

TEST_F(HostApplicationTest, CreateItemFromTemplate_WithoutFolder_LivesInTheCalendar)
{
    mApplication->CreateItemFromTemplate(Form(), nullptr)->Save();
    EXPECT_EQ(mCalendar->Items()->Count(), 1);
}

TEST_F(HostApplicationTest, CreateItemFromTemplate_AbsentFile_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mApplication->CreateItemFromTemplate(Form() + "x", mCalendar); }), 53);
}

}
