#include "contract/ContractStores.h"
#include "contract/StoreContract.h"

namespace tempodial {

class FolderContract : public StoreContract
{
};

TEST_P(FolderContract, Session_HasOneStoreOfThatName)
{
    const auto stores = mStore->Session()->Folders();
    ASSERT_EQ(stores->Count(), 1);
    EXPECT_EQ(stores->Item(1)->Name(), "Mailbox");
    EXPECT_EQ(stores->ItemNamed("mailbox")->FullFolderPath(), "\\\\Mailbox");
}

TEST_P(FolderContract, GetDefaultFolder_EachKind_IsBelowTheStore)
{
    const auto session = mStore->Session();
    EXPECT_EQ(session->GetDefaultFolder(DefaultFolder::Inbox)->FullFolderPath(), "\\\\Mailbox\\Inbox");
    EXPECT_EQ(session->GetDefaultFolder(DefaultFolder::Calendar)->FullFolderPath(), "\\\\Mailbox\\Calendar");
    EXPECT_EQ(session->GetDefaultFolder(DefaultFolder::Drafts)->FullFolderPath(), "\\\\Mailbox\\Drafts");
}

TEST_P(FolderContract, GetDefaultFolder_Deleted_Fails)
{
    mStore->DeleteFolder(mCalendar);
    EXPECT_EQ(FailureNumber([&] { mStore->Session()->GetDefaultFolder(DefaultFolder::Calendar); }), NotFound);
}

TEST_P(FolderContract, EntryID_IsTheSameOnEachWay)
{
    EXPECT_EQ(mLog->EntryID(), mCalendar->Folders()->ItemNamed("TEMPODIAL")->EntryID());
    EXPECT_NE(mLog->EntryID(), mCalendar->EntryID());
    EXPECT_EQ(mLog->EntryID().size(), 48U);
}

TEST_P(FolderContract, EntryID_RenamedAndMoved_StaysTheSame)
{
    const auto id = mLog->EntryID();
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    const auto itemId = item->EntryID();

    mStore->RenameFolder(mLog, "Work");
    EXPECT_EQ(mLog->EntryID(), id);
    EXPECT_EQ(mLog->Name(), "Work");
    EXPECT_EQ(mLog->FullFolderPath(), "\\\\Mailbox\\Calendar\\Work");

    mStore->MoveFolder(mLog, mStore->Session()->GetDefaultFolder(DefaultFolder::Inbox));
    EXPECT_EQ(mLog->EntryID(), id);
    EXPECT_EQ(mLog->FullFolderPath(), "\\\\Mailbox\\Inbox\\Work");
    EXPECT_EQ(mCalendar->Folders()->Count(), 0);
    EXPECT_EQ(mLog->Items()->Item(1)->EntryID(), itemId);
}

TEST_P(FolderContract, Rename_OfAParent_ChangesThePathBelow)
{
    mStore->RenameFolder(mCalendar, "Kalender");
    EXPECT_EQ(mLog->FullFolderPath(), "\\\\Mailbox\\Kalender\\Tempodial");
    EXPECT_EQ(mStore->Session()->GetDefaultFolder(DefaultFolder::Calendar)->Name(), "Kalender");
}

TEST_P(FolderContract, Rename_ToTheSameNameInOtherCase_IsAllowed)
{
    mStore->RenameFolder(mLog, "TEMPODIAL");
    EXPECT_EQ(mLog->Name(), "TEMPODIAL");
}

TEST_P(FolderContract, Rename_ToANameInUse_FailsAndChangesNothing)
{
    mCalendar->Folders()->Add("Work", DefaultFolder::Calendar);
    EXPECT_EQ(FailureNumber([&] { mStore->RenameFolder(mLog, "work"); }), 457);
    EXPECT_EQ(mLog->Name(), "Tempodial");
}

TEST_P(FolderContract, Move_BelowItself_Fails)
{
    const auto below = mLog->Folders()->Add("Below", DefaultFolder::Calendar);
    EXPECT_EQ(FailureNumber([&] { mStore->MoveFolder(mLog, below); }), 5);
    EXPECT_EQ(FailureNumber([&] { mStore->MoveFolder(mLog, mLog); }), 5);
    EXPECT_EQ(below->FullFolderPath(), "\\\\Mailbox\\Calendar\\Tempodial\\Below");
}

TEST_P(FolderContract, Move_WhereItsNameIsInUse_Fails)
{
    const auto inbox = mStore->Session()->GetDefaultFolder(DefaultFolder::Inbox);
    inbox->Folders()->Add("tempodial", DefaultFolder::Inbox);
    EXPECT_EQ(FailureNumber([&] { mStore->MoveFolder(mLog, inbox); }), 457);
}

TEST_P(FolderContract, Store_CanNotBeChanged)
{
    const auto store = mStore->Session()->Folders()->Item(1);
    EXPECT_EQ(FailureNumber([&] { mStore->RenameFolder(store, "Box"); }), 5);
    EXPECT_EQ(FailureNumber([&] { mStore->MoveFolder(store, mLog); }), 5);
    EXPECT_EQ(FailureNumber([&] { mStore->DeleteFolder(store); }), 5);
    EXPECT_EQ(FailureNumber([&] { mStore->Session()->Folders()->Add("Second", DefaultFolder::Inbox); }), 5);
}

TEST_P(FolderContract, Item_UnknownName_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mCalendar->Folders()->ItemNamed("Absent"); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { mStore->Session()->Folders()->ItemNamed("Absent"); }), NotFound);
}

TEST_P(FolderContract, Item_PositionOutOfRange_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mCalendar->Folders()->Item(0); }), 9);
    EXPECT_EQ(FailureNumber([&] { mCalendar->Folders()->Item(2); }), 9);
}

TEST_P(FolderContract, Folders_AreInTheOrderInWhichTheyWereMade)
{
    mCalendar->Folders()->Add("Alpha", DefaultFolder::Calendar);
    mStore->MoveFolder(mLog, mStore->Session()->GetDefaultFolder(DefaultFolder::Inbox));
    mCalendar->Folders()->Add("Aaa", DefaultFolder::Calendar);
    mStore->MoveFolder(mLog, mCalendar);
    const auto folders = mCalendar->Folders();
    ASSERT_EQ(folders->Count(), 3);
    EXPECT_EQ(folders->Item(1)->Name(), "Tempodial");
    EXPECT_EQ(folders->Item(2)->Name(), "Alpha");
    EXPECT_EQ(folders->Item(3)->Name(), "Aaa");
}

TEST_P(FolderContract, Add_NameInUseOrNotAllowed_Fails)
{
    const auto folders = mCalendar->Folders();
    EXPECT_EQ(FailureNumber([&] { folders->Add("tempodial", DefaultFolder::Calendar); }), 457);
    for (const auto* name : { "", "  ", "a/b", "a\\b", "a\nb" }) {
        EXPECT_EQ(FailureNumber([&] { folders->Add(name, DefaultFolder::Calendar); }), 5) << name;
    }
    EXPECT_EQ(folders->Count(), 1);
}

TEST_P(FolderContract, Deleted_EveryMemberFails)
{
    const auto below = mLog->Folders()->Add("Below", DefaultFolder::Calendar);
    const auto item = SavedItem("a", At(9, 0), At(9, 5));
    const auto items = mLog->Items();
    const auto views = mLog->Views();
    mStore->DeleteFolder(mLog);
    for (const auto& folder : { mLog, below }) {
        EXPECT_EQ(FailureNumber([&] { folder->EntryID(); }), NotFound);
        EXPECT_EQ(FailureNumber([&] { folder->Name(); }), NotFound);
        EXPECT_EQ(FailureNumber([&] { folder->FullFolderPath(); }), NotFound);
        EXPECT_EQ(FailureNumber([&] { folder->Folders(); }), NotFound);
        EXPECT_EQ(FailureNumber([&] { folder->Items(); }), NotFound);
        EXPECT_EQ(FailureNumber([&] { folder->Views(); }), NotFound);
    }
    EXPECT_EQ(FailureNumber([&] { items->Count(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { items->Add("IPM.Appointment"); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { items->Restrict("[Subject] = \"a\""); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { items->Find("[Subject] = \"a\""); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { views->Count(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->Subject(); }), NotFound);
    EXPECT_EQ(FailureNumber([&] { item->Save(); }), NotFound);
    EXPECT_EQ(mCalendar->Folders()->Count(), 0);
}

TEST_P(FolderContract, Deleted_AnItemNeverSavedCanNotBeSaved)
{
    const auto item = NewItem("a", At(9, 0), At(9, 5));
    mStore->DeleteFolder(mLog);
    EXPECT_EQ(FailureNumber([&] { item->Save(); }), NotFound);
}

INSTANTIATE_TEST_SUITE_P(Stores, FolderContract, testing::ValuesIn(ContractStores()), StoreName);

}
