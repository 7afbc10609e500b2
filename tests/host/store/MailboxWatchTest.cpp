#include "host/store/MailboxWatch.h"

#include "host/store/ForgetJournal.h"
#include "host/store/StepJournal.h"
#include "support/FailureNumber.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MailboxWatchTest : public testing::Test
{
protected:
    Ref<StoreItem> Saved(const std::string& subject) const
    {
        auto item = NewTestItem(mMailbox, subject);
        item->Save();
        return item;
    }
    /// What was told when the host is idle.
    std::vector<ItemChanges> Told()
    {
        mMailbox->DeliverEvents();
        return std::exchange(mTold, {});
    }
    int FoldersTold()
    {
        mMailbox->DeliverEvents();
        return std::exchange(mFoldersTold, 0);
    }
    ItemChanges In(const Ref<MAPIFolder>& folder, std::set<std::int64_t> saved, std::set<std::int64_t> gone) const
    {
        return { .folders = { { folder->EntryID(), { std::move(saved), std::move(gone) } } } };
    }

    Ref<Mailbox> mMailbox = OpenTestMailbox();
    Ref<MAPIFolder> mCalendar = mMailbox->FolderByPath("Calendar");
    Ref<MAPIFolder> mLog = mCalendar->Folders()->Add("Log", DefaultFolder::Calendar);
    std::vector<ItemChanges> mTold;
    int mFoldersTold = 0;
    MailboxWatch mWatch { mMailbox,
        { .ItemsChanged = [this](const ItemChanges& changes) { mTold.push_back(changes); },
            .FoldersChanged = [this] { ++mFoldersTold; } } };
};

}

TEST_F(MailboxWatchTest, ItemsChanged_IsGatheredUntilTheHostIsIdle)
{
    const auto first = Saved("a");
    const auto second = Saved("b");
    EXPECT_THAT(mTold, IsEmpty());
    EXPECT_THAT(Told(), ElementsAre(In(mCalendar, { first->Number(), second->Number() }, {})));
    EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(MailboxWatchTest, ItemsChanged_SaveOfWhatIsThere_IsNone)
{
    const auto item = Saved("a");
    Told();
    item->SetSubject("a");
    item->Save();
    item->SetSubject("unsaved");
    EXPECT_THAT(Told(), IsEmpty());
    item->Save();
    EXPECT_THAT(Told(), ElementsAre(In(mCalendar, { item->Number() }, {})));
}

TEST_F(MailboxWatchTest, ItemsChanged_Moved_LeavesOneFolderAndComesToTheOther)
{
    const auto item = Saved("a");
    const auto number = item->Number();
    Told();
    item->Move(mLog);
    const auto told = Told();
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told.front().folders.at(mCalendar->EntryID()), (FolderItemChanges { {}, { number } }));
    EXPECT_EQ(told.front().folders.at(mLog->EntryID()), (FolderItemChanges { { number }, {} }));
    EXPECT_TRUE(told.front().Concern(mLog->EntryID()));
    EXPECT_FALSE(told.front().Concern(mMailbox->FolderByPath("Inbox")->EntryID()));
}

TEST_F(MailboxWatchTest, ItemsChanged_Deleted_IsGoneWhateverWasBefore)
{
    const auto item = Saved("a");
    const auto number = item->Number();
    item->Delete();
    NewTestItem(mMailbox, "never saved")->Delete();
    EXPECT_THAT(Told(), ElementsAre(In(mCalendar, {}, { number })));
}

TEST_F(MailboxWatchTest, ItemsChanged_MovedAwayAndBack_IsThere)
{
    const auto item = Saved("a");
    Told();
    item->Move(mLog);
    item->Move(mCalendar);
    const auto told = Told();
    ASSERT_EQ(told.size(), 1);
    EXPECT_EQ(told.front().folders.at(mCalendar->EntryID()), (FolderItemChanges { { item->Number() }, {} }));
    EXPECT_EQ(told.front().folders.at(mLog->EntryID()), (FolderItemChanges { {}, { item->Number() } }));
}

TEST_F(MailboxWatchTest, ItemsChanged_IsToldBehindWhatHasArrived)
{
    const auto items = mCalendar->Items();
    std::vector<std::size_t> toldAtArrival;
    const auto arrivals = items->Subscribe({ [&](const auto&) {
        toldAtArrival.push_back(mTold.size());
        // What is done then is told together with it, also when messages are processed meanwhile.
        NewTestItem(mMailbox, "answer")->Save();
    } });
    Saved("a");
    Told();
    EXPECT_EQ(toldAtArrival.front(), 0);
}

TEST_F(MailboxWatchTest, ItemsChanged_UndoneWrites_AreAnything)
{
    StepJournal journal(mMailbox);
    journal.Begin({}, "command", [] { return std::string(); });
    Saved("a");
    journal.Abandon();
    const auto told = Told();
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.front().isAnything);
    EXPECT_TRUE(told.front().Concern(mLog->EntryID()));
}

TEST_F(MailboxWatchTest, ItemsChanged_StepTakenBackOrFolderDeleted_IsAnything)
{
    StepJournal journal(mMailbox);
    const auto now = Date::FromParts({ 2006, 10, 10, 17, 0, 0 });
    journal.Begin(now, "command", [] { return std::string(); });
    Saved("a");
    journal.End();
    Told();
    journal.Begin(now, "undo", [] { return std::string(); });
    journal.TakeBack(journal.Find(1).value(), now);
    journal.End();
    EXPECT_THAT(Told(), ElementsAre(ItemChanges { .isAnything = true }));
    mMailbox->DeleteFolder(mLog);
    EXPECT_THAT(Told(), ElementsAre(ItemChanges { .isAnything = true }));
    ForgetJournal(mMailbox).Forget({});
    EXPECT_THAT(Told(), ElementsAre(ItemChanges { .isAnything = true }));
}

TEST_F(MailboxWatchTest, FoldersChanged_IsToldOfFoldersAndViews)
{
    EXPECT_EQ(FoldersTold(), 0);
    const auto added = mLog->Folders()->Add("Below", DefaultFolder::Calendar);
    EXPECT_EQ(FoldersTold(), 1);
    mMailbox->RenameFolder(added, "Other");
    EXPECT_EQ(FoldersTold(), 1);
    mMailbox->MoveFolder(added, mCalendar);
    EXPECT_EQ(FoldersTold(), 1);
    mMailbox->DeleteFolder(added);
    EXPECT_EQ(FoldersTold(), 1);
    mLog->Views()->Add("Unsaved", ViewType::Table, ViewSaveOption::ThisFolderEveryone);
    EXPECT_EQ(FoldersTold(), 1);
    mMailbox->SetView(mLog, "List", ViewType::Table, "<view type=\"table\"/>");
    EXPECT_EQ(FoldersTold(), 1);
    mMailbox->SetView(mLog, "List", ViewType::Table, "<view type=\"table\"/>");
    EXPECT_EQ(FoldersTold(), 0);
    mMailbox->DeleteView(mLog, "List");
    EXPECT_EQ(FoldersTold(), 1);
    Saved("a");
    EXPECT_EQ(FoldersTold(), 0);
}

TEST_F(MailboxWatchTest, Begun_TellsNothingOfWhatWasBefore)
{
    const auto mailbox = OpenTestMailbox();
    NewTestItem(mailbox, "a")->Save();
    mailbox->FolderByPath("Calendar")->Folders()->Add("Before", DefaultFolder::Calendar);
    int told = 0;
    const MailboxWatch watch(
        mailbox, { .ItemsChanged = [&](const auto&) { ++told; }, .FoldersChanged = [&] { ++told; } });
    mailbox->DeliverEvents();
    EXPECT_EQ(told, 0);
}

}
