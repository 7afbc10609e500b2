#include "host/store/SavedTogether.h"

#include "host/store/Query.h"
#include "host/store/StepJournal.h"
#include "host/store/StoreImportJournal.h"
#include "support/FailureNumber.h"
#include "support/TempFolder.h"
#include "support/TestDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SavedTogetherTest : public testing::Test
{
protected:
    Ref<StoreItem> SavedByPerson(const std::string& subject) const
    {
        auto item = NewTestItem(mMailbox, subject);
        item->SaveAsPerson();
        return item;
    }
    /// What another program would find there.
    std::vector<std::string> Committed() const
    {
        std::vector<std::string> subjects;
        MailboxDatabase other(mPath, MailboxDatabase::Access::Reading);
        Query query(other, "SELECT subject FROM item ORDER BY id");
        while (query.Step()) {
            subjects.push_back(query.Text(0));
        }
        return subjects;
    }

    TempFolder mFolder { TempFolder::InMemory() };
    std::string mPath = mFolder.Path() + "/mailbox.db";
    Ref<Mailbox> mMailbox = OpenTestMailbox(mPath);
};

}

TEST_F(SavedTogetherTest, Work_IsCommittedAtItsEnd)
{
    SavedTogether(mMailbox, [&] {
        SavedByPerson("a");
        SavedTogether(mMailbox, [&] { SavedByPerson("b"); });
        EXPECT_THAT(Committed(), IsEmpty());
    });
    EXPECT_THAT(Committed(), ElementsAre("a", "b"));
    SavedByPerson("c");
    EXPECT_THAT(Committed(), ElementsAre("a", "b", "c"));
}

TEST_F(SavedTogetherTest, Work_Fails_NothingIsLeft)
{
    const auto item = SavedByPerson("kept");
    EXPECT_THROW(SavedTogether(mMailbox,
                     [&] {
                         SavedByPerson("a");
                         item->SetSubject("changed");
                         item->SaveAsPerson();
                         throw std::runtime_error("no more");
                     }),
        std::runtime_error);
    EXPECT_THAT(Committed(), ElementsAre("kept"));
    // What was changed is an unsaved change again, and writing goes on.
    EXPECT_TRUE(item->HasChanges());
    item->SaveAsPerson();
    EXPECT_THAT(Committed(), ElementsAre("changed"));
}

TEST_F(SavedTogetherTest, Commit_IsRefused_NothingIsLeft)
{
    auto& database = TestDatabase(mMailbox);
    database.Execute("CREATE TEMP TABLE refused (id INTEGER PRIMARY KEY, other INTEGER REFERENCES refused (id) "
                     "DEFERRABLE INITIALLY DEFERRED)");
    EXPECT_NE(FailureNumber([&] {
        SavedTogether(mMailbox, [&] {
            SavedByPerson("a");
            database.Execute("INSERT INTO refused (other) VALUES (-1)");
        });
    }),
        0);
    EXPECT_THAT(Committed(), IsEmpty());
    SavedByPerson("b");
    EXPECT_THAT(Committed(), ElementsAre("b"));
}

TEST_F(SavedTogetherTest, InTheMidstOfAStep_BelongsToTheStep)
{
    StepJournal journal(mMailbox);
    journal.Begin(Date::FromParts({ 2006, 10, 10, 17, 0, 0 }), "command", [] { return std::string(); });
    SavedTogether(mMailbox, [&] {
        SavedByPerson("a");
        SavedByPerson("b");
    });
    EXPECT_THAT(Committed(), ElementsAre("a", "b"));
    ASSERT_TRUE(journal.Find(1));
    EXPECT_EQ(journal.Find(1)->items, 2);
}

TEST_F(SavedTogetherTest, InTheMidstOfAnImport_CommitsWithIt)
{
    StoreImportJournal journal(mMailbox);
    journal.Begin();
    NewTestItem(mMailbox, "imported")->Save();
    SavedTogether(mMailbox, [&] {
        SavedByPerson("a");
        EXPECT_THAT(Committed(), IsEmpty());
    });
    EXPECT_THAT(Committed(), ElementsAre("imported", "a"));
    journal.End();
}

TEST_F(SavedTogetherTest, ImportBeginsMeanwhile_TakesOverWhatIsHeld)
{
    StoreImportJournal journal(mMailbox);
    SavedTogether(mMailbox, [&] {
        SavedByPerson("a");
        journal.Begin();
        NewTestItem(mMailbox, "imported")->Save();
        journal.End();
        EXPECT_THAT(Committed(), ElementsAre("a", "imported"));
    });
    SavedByPerson("b");
    EXPECT_THAT(Committed(), ElementsAre("a", "imported", "b"));
}

}
