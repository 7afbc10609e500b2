#include "host/store/StoreImportJournal.h"

#include "support/FailureNumber.h"
#include "support/KilledProcess.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

class StoreImportJournalTest : public testing::Test
{
protected:
    /// An item too large for a full disk.
    Ref<StoreItem> LargeItem(const std::string& subject)
    {
        auto item = NewTestItem(mMailbox, subject);
        item->SetBody(std::string(100'000, 'x'));
        return item;
    }
    std::int32_t Stored() { return TestItems(mMailbox)->Count(); }

    TempFolder mFolder;
    std::string mPath = mFolder.Path("mailbox.db");
    Ref<Mailbox> mMailbox = OpenTestMailbox();
    Ref<StoreImportJournal> mJournal = MakeRef<StoreImportJournal>(mMailbox);
};

TEST_F(StoreImportJournalTest, Committed_NothingLoaded_IsNothing)
{
    EXPECT_FALSE(mJournal->Committed("20061010"));
}

TEST_F(StoreImportJournalTest, Commit_KeepsThePositions)
{
    mJournal->Begin();
    mJournal->Loaded("20061010", { 36000, 2 });
    mJournal->Loaded("20061010", { 36300, 3 });
    mJournal->Loaded("20061009", { 100, 1 });
    EXPECT_FALSE(mJournal->Committed("20061010"));
    mJournal->Commit();
    ASSERT_TRUE(mJournal->Committed("20061010"));
    EXPECT_EQ(mJournal->Committed("20061010")->count, 36300);
    EXPECT_EQ(mJournal->Committed("20061010")->lines, 3);
    EXPECT_EQ(mJournal->Committed("20061009")->count, 100);
    mJournal->End();
}

TEST_F(StoreImportJournalTest, End_CommitsTheRest)
{
    mJournal->Begin();
    mJournal->Loaded("20061010", { 36000, 2 });
    NewTestItem(mMailbox, "a")->Save();
    mJournal->End();
    EXPECT_EQ(mJournal->Committed("20061010")->count, 36000);
    EXPECT_EQ(Stored(), 1);
    EXPECT_FALSE(TestDatabase(mMailbox).IsHolding());
}

TEST_F(StoreImportJournalTest, HistorySaved_ForgetsThePositions)
{
    mJournal->Begin();
    mJournal->Loaded("20061010", { 36000, 2 });
    mJournal->Commit();
    mJournal->Loaded("20061010", { 36300, 3 });
    mJournal->HistorySaved();
    EXPECT_FALSE(mJournal->Committed("20061010"));
    mJournal->End();
    EXPECT_FALSE(mJournal->Committed("20061010"));
}

TEST_F(StoreImportJournalTest, HistorySaved_AfterTheEnd_ForgetsThem)
{
    mJournal->Begin();
    mJournal->Loaded("20061010", { 36000, 2 });
    mJournal->End();
    mJournal->HistorySaved();
    EXPECT_FALSE(mJournal->Committed("20061010"));
}

TEST_F(StoreImportJournalTest, HistorySaved_Remembering_WritesNothingAndThePositionsHoldNoMore)
{
    std::string history = "|20061010_36000";
    const auto journal = MakeRef<StoreImportJournal>(mMailbox, [&] { return history; });
    journal->SetRemembers(true);
    journal->Begin();
    journal->Loaded("20061010", { 36300, 2 });
    journal->Commit();
    EXPECT_EQ(journal->Committed("20061010")->count, 36300);
    history = "|20061010_36300";
    journal->HistorySaved();
    EXPECT_FALSE(journal->Committed("20061010"));
    journal->End();
    EXPECT_EQ(TestDatabase(mMailbox).Number("SELECT count(*) FROM import_position"), 1);

    journal->Begin();
    EXPECT_FALSE(journal->Committed("20061010"));
    journal->Loaded("20061011", { 100, 1 });
    journal->Commit();
    EXPECT_EQ(TestDatabase(mMailbox).Number("SELECT count(*) FROM import_position"), 1) << "the former one is gone";
    EXPECT_EQ(journal->Committed("20061011")->count, 100);
    journal->End();
}

TEST_F(StoreImportJournalTest, Committed_HistoryNotWrittenSince_Holds)
{
    const auto reader = [] { return std::string("|20061010_36000"); };
    const auto journal = MakeRef<StoreImportJournal>(mMailbox, reader);
    journal->Begin();
    journal->Loaded("20061010", { 36300, 2 });
    journal->End();

    const auto next = MakeRef<StoreImportJournal>(mMailbox, reader);
    next->Begin();
    EXPECT_EQ(next->Committed("20061010")->count, 36300);
    next->End();
}

TEST_F(StoreImportJournalTest, HistorySaved_NoHistoryOrNotRemembering_DeletesThePositions)
{
    for (const bool remembers : { false, true }) {
        const auto journal = MakeRef<StoreImportJournal>(
            mMailbox, [&] { return remembers ? std::nullopt : std::optional<std::string>("|20061010_36000"); });
        journal->SetRemembers(remembers);
        journal->Begin();
        journal->Loaded("20061010", { 36300, 2 });
        journal->Commit();
        EXPECT_TRUE(journal->Committed("20061010"));
        journal->HistorySaved();
        EXPECT_EQ(TestDatabase(mMailbox).Number("SELECT count(*) FROM import_position"), 0);
        journal->End();
    }
}

TEST_F(StoreImportJournalTest, Loaded_ManyLines_CommitsByItself)
{
    mJournal->Begin();
    for (std::int32_t line = 1; line <= 2000; ++line) {
        mJournal->Loaded("20061010", { line, line });
    }
    EXPECT_EQ(mJournal->Committed("20061010")->lines, 2000);
    mJournal->End();
}

TEST_F(StoreImportJournalTest, Loaded_NothingBegun_Fails)
{
    EXPECT_EQ(FailureNumber([&] { mJournal->Loaded("20061010", { 1, 1 }); }), 5);
}

TEST_F(StoreImportJournalTest, CommitAndEnd_NothingBegun_DoNothing)
{
    mJournal->Commit();
    mJournal->End();
    EXPECT_FALSE(mJournal->Committed("20061010"));
}

TEST_F(StoreImportJournalTest, Begin_Twice_CommitsAndGoesOn)
{
    mJournal->Begin();
    mJournal->Loaded("20061010", { 36000, 2 });
    mJournal->Begin();
    EXPECT_TRUE(mJournal->Committed("20061010"));
    mJournal->End();
}

TEST_F(StoreImportJournalTest, FullDisk_UndoesWhatWasNotCommitted)
{
    mJournal->Begin();
    const auto kept = NewTestItem(mMailbox, "kept");
    kept->Save();
    mJournal->Loaded("20061010", { 100, 1 });
    mJournal->Commit();
    const auto keptId = kept->EntryID();
    const auto lost = NewTestItem(mMailbox, "lost");
    lost->Save();
    kept->SetSubject("changed");
    kept->Save();
    mJournal->Loaded("20061010", { 200, 2 });
    FillDisk(mMailbox);
    const auto large = LargeItem("large");
    EXPECT_EQ(FailureNumber([&] { large->Save(); }), 61);

    EXPECT_EQ(large->EntryID(), "");
    EXPECT_EQ(lost->EntryID(), "");
    EXPECT_EQ(kept->EntryID(), keptId);
    EXPECT_EQ(kept->Subject(), "changed");
    EXPECT_TRUE(kept->HasChanges());
    EXPECT_EQ(Stored(), 1);
    EXPECT_EQ(mMailbox->Statistics().created, 1);
    EXPECT_EQ(mMailbox->Statistics().detailed, 0);
    EXPECT_EQ(mMailbox->Statistics().failed.size(), 1U);

    // Nothing is written until the import has ended, so that its lines don't come in twice.
    FreeDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { lost->Save(); }), 61);
    EXPECT_EQ(FailureNumber([&] { mJournal->Loaded("20061010", { 300, 3 }); }), 61);
    EXPECT_EQ(FailureNumber([&] { mJournal->Commit(); }), 61);
    EXPECT_EQ(mJournal->Committed("20061010")->count, 100);
    EXPECT_EQ(FailureNumber([&] { mJournal->End(); }), 61);

    lost->Save();
    EXPECT_NE(lost->EntryID(), "");
    EXPECT_EQ(Stored(), 2);
    kept->Close(CloseMode::Discard);
    EXPECT_EQ(kept->Subject(), "kept");
}

TEST_F(StoreImportJournalTest, FullDisk_UndoesFoldersFieldsAndMoves)
{
    const auto item = NewTestItem(mMailbox, "a");
    item->Save();
    const auto calendar = mMailbox->FolderByPath("Calendar");
    mJournal->Begin();
    const auto folder = calendar->Folders()->Add("New", DefaultFolder::Calendar);
    item->UserProperties()->Add("Project", PropertyType::Text, true);
    item->Move(mMailbox->FolderByPath("Inbox"));
    mMailbox->RenameFolder(mMailbox->FolderByPath("Drafts"), "Entwürfe");
    FillDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { LargeItem("large")->Save(); }), 61);
    EXPECT_EQ(FailureNumber([&] { folder->Name(); }), static_cast<std::int32_t>(Error::ObjectNotFound));
    EXPECT_EQ(calendar->Folders()->Count(), 0);
    EXPECT_EQ(mMailbox->PathOf(item->Parent()), "Calendar");
    EXPECT_EQ(mMailbox->FolderByPath("Drafts")->Name(), "Drafts");
    EXPECT_EQ(FailureNumber([&] { calendar->Items()->Find("[Project] = \"\""); }), 5);
    EXPECT_EQ(FailureNumber([&] { mMailbox->RenameFolder(calendar, "x"); }), 61);
    EXPECT_EQ(FailureNumber([&] { mJournal->End(); }), 61);
}

TEST_F(StoreImportJournalTest, FullDisk_LostItemsDoNotArrive)
{
    const auto items = TestItems(mMailbox);
    int arrived = 0;
    ItemsEvents events;
    events.ItemAdd = [&](const Ref<OutlookItem>&) { ++arrived; };
    const auto subscription = items->Subscribe(events);
    mJournal->Begin();
    NewTestItem(mMailbox, "lost")->Save();
    FillDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { LargeItem("large")->Save(); }), 61);
    mMailbox->DeliverEvents();
    EXPECT_EQ(arrived, 0);
    EXPECT_EQ(FailureNumber([&] { mJournal->End(); }), 61);
}

TEST_F(StoreImportJournalTest, FailedCommit_UndoesWhatWasNotCommitted)
{
    mMailbox = OpenTestMailbox(mPath);
    mJournal = MakeRef<StoreImportJournal>(mMailbox);
    mJournal->Begin();
    const auto item = NewTestItem(mMailbox, "a");
    item->Save();
    mJournal->Loaded("20061010", { 100, 1 });
    // A row of a folder that isn't there is noticed by the commit only.
    TestDatabase(mMailbox).Execute("PRAGMA defer_foreign_keys = ON");
    TestDatabase(mMailbox).Execute("UPDATE item SET folder = 999");
    EXPECT_NE(FailureNumber([&] { mJournal->Commit(); }), 0);
    EXPECT_EQ(item->EntryID(), "");
    EXPECT_FALSE(mJournal->Committed("20061010"));
    EXPECT_NE(FailureNumber([&] { mJournal->Loaded("20061010", { 200, 2 }); }), 0);
    EXPECT_NE(FailureNumber([&] { mJournal->End(); }), 0);
    item->Save();
    EXPECT_EQ(Stored(), 1);
}

TEST_F(StoreImportJournalTest, Begin_AfterAFailure_StartsAnew)
{
    mJournal->Begin();
    FillDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { LargeItem("large")->Save(); }), 61);
    FreeDisk(mMailbox);
    mJournal->Begin();
    LargeItem("large")->Save();
    mJournal->Loaded("20061010", { 100, 1 });
    mJournal->End();
    EXPECT_EQ(Stored(), 1);
    EXPECT_TRUE(mJournal->Committed("20061010"));
}

TEST_F(StoreImportJournalTest, CommitHeld_CommitsTheImportInItsMidst)
{
    mMailbox->CommitHeld();
    mJournal->Begin();
    NewTestItem(mMailbox, "a")->Save();
    mJournal->Loaded("20061010", { 100, 1 });
    mMailbox->CommitHeld();
    EXPECT_EQ(mJournal->Committed("20061010")->count, 100);
    EXPECT_TRUE(TestDatabase(mMailbox).IsHolding());
    mMailbox->CommitHeld();
    mJournal->End();
    mMailbox->CommitHeld();
    EXPECT_FALSE(TestDatabase(mMailbox).IsHolding());
    mJournal = nullptr;
    mMailbox->CommitHeld();
    EXPECT_EQ(Stored(), 1);
}

TEST_F(StoreImportJournalTest, SaveAsPerson_KilledAfterIt_TheNextProcessFindsAll)
{
    ASSERT_TRUE(RunUntilKilled([&] {
        const auto mailbox = OpenTestMailbox(mPath);
        StoreImportJournal journal(mailbox);
        journal.Begin();
        NewTestItem(mailbox, "imported")->Save();
        journal.Loaded("20061010", { 100, 1 });
        NewTestItem(mailbox, "of a person")->SaveAsPerson();
        NewTestItem(mailbox, "lost")->Save();
        KillThisProcess();
    }));
    const auto mailbox = OpenTestMailbox(mPath);
    EXPECT_EQ(TestItems(mailbox)->Count(), 2);
    EXPECT_EQ(StoreImportJournal(mailbox).Committed("20061010")->count, 100);
}

TEST_F(StoreImportJournalTest, SaveAsPerson_CommitFails_UndoesWhatWasHeld)
{
    mJournal->Begin();
    NewTestItem(mMailbox, "imported")->Save();
    const auto item = LargeItem("of a person");
    FillDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { item->SaveAsPerson(); }), 61);
    EXPECT_TRUE(item->HasChanges());
    EXPECT_EQ(Stored(), 0);
    FreeDisk(mMailbox);
    EXPECT_EQ(FailureNumber([&] { item->SaveAsPerson(); }), 61);
    mJournal->Begin();
    EXPECT_TRUE(item->SaveAsPerson());
    mJournal->End();
    EXPECT_EQ(Stored(), 1);
}

TEST_F(StoreImportJournalTest, KilledBetweenCommits_TheNextProcessFindsTheLastCommit)
{
    ASSERT_TRUE(RunUntilKilled([&] {
        const auto mailbox = OpenTestMailbox(mPath);
        StoreImportJournal journal(mailbox);
        journal.Begin();
        NewTestItem(mailbox, "committed")->Save();
        journal.Loaded("20061010", { 100, 1 });
        journal.Commit();
        NewTestItem(mailbox, "lost")->Save();
        journal.Loaded("20061010", { 200, 2 });
        KillThisProcess();
    }));
    const auto mailbox = OpenTestMailbox(mPath);
    const auto items = TestItems(mailbox);
    ASSERT_EQ(items->Count(), 1);
    EXPECT_EQ(items->Item(1)->Subject(), "committed");
    StoreImportJournal journal(mailbox);
    ASSERT_TRUE(journal.Committed("20061010"));
    EXPECT_EQ(journal.Committed("20061010")->count, 100);
    EXPECT_EQ(journal.Committed("20061010")->lines, 1);
}

TEST_F(StoreImportJournalTest, KilledAfterHistorySaved_ThePositionsAreForgotten)
{
    ASSERT_TRUE(RunUntilKilled([&] {
        StoreImportJournal journal(OpenTestMailbox(mPath));
        journal.Begin();
        journal.Loaded("20061010", { 100, 1 });
        journal.Commit();
        journal.HistorySaved();
        KillThisProcess();
    }));
    EXPECT_FALSE(StoreImportJournal(OpenTestMailbox(mPath)).Committed("20061010"));
}

TEST_F(StoreImportJournalTest, MailboxLetGoOfWithinAnImport_KeepsTheLastCommit)
{
    {
        const auto mailbox = OpenTestMailbox(mPath);
        StoreImportJournal journal(mailbox);
        journal.Begin();
        NewTestItem(mailbox, "committed")->Save();
        journal.Commit();
        NewTestItem(mailbox, "lost")->Save();
    }
    EXPECT_EQ(TestItems(OpenTestMailbox(mPath))->Count(), 1);
}

}
