#include "desktop/qt/LogSearch.h"

#include "DesktopFixture.h"
#include "session/WorkLogFolder.h"
#include "support/TestDatabase.h"

#include <QElapsedTimer>
#include <QTest>

namespace tempodial {

/// A search through a log of many years.
class LogSearchTest : public DesktopFixture
{
protected:
    LogSearchTest()
    {
        mSearch.mWhenFound = [this] {
            ++mNews;
            mSawDone = mSearch.IsDone();
        };
    }

    /// Activities back from today, an hour each.
    void AddMany(std::size_t count)
    {
        const auto& mailbox = mDesk->Session().Mailbox();
        Add("Alpha", "needle 0", "Writer", On(17, 9), On(17, 10));
        const auto log = WorkLogOf(mDesk->Profile());
        const auto model = mailbox->Stored(mailbox->ItemById(log->Items()->Item(1)->EntryID()));
        TestDatabase(mailbox).Atomically([&] {
            for (std::size_t i = 1; i < count; ++i) {
                auto data = model;
                data.start = model.start.AddMinutes(-60 * static_cast<std::int64_t>(i));
                data.end = data.start.AddMinutes(60);
                data.subject = "needle " + std::to_string(i);
                mailbox->NewItem(log, data)->Save();
            }
        });
    }
    bool Search(const std::string& words)
    {
        constexpr int Long = 60000;
        mSearch.Begin(SearchTerms(words));
        return QTest::qWaitFor([this] { return mSearch.IsDone(); }, Long);
    }

    LogSearch mSearch { *mDesk };
    int mNews = 0;
    bool mSawDone = false;
};

TEST_F(LogSearchTest, MoreThanTheMost_EndsWithTheNewestOnes)
{
    AddMany(LogSearch::Most + 300);
    QElapsedTimer clock;
    clock.start();
    ASSERT_TRUE(Search("needle"));
    const auto elapsed = clock.elapsed();
    EXPECT_TRUE(mSearch.IsFull());
    ASSERT_EQ(mSearch.Found().size(), LogSearch::Most);
    EXPECT_EQ(mSearch.Found().front().start, On(17, 9));
    EXPECT_EQ(
        mSearch.Found().back().start, On(17, 9).AddMinutes(-60 * (static_cast<std::int64_t>(LogSearch::Most) - 1)));
    EXPECT_TRUE(mSawDone) << "the end is told at once";
    constexpr qint64 BetweenNews = 250;
    EXPECT_LE(mNews, elapsed / BetweenNews + 2) << "in " << elapsed << " ms";
}

TEST_F(LogSearchTest, Few_AreAllFoundAndTheEndIsTold)
{
    AddMany(3);
    ASSERT_TRUE(Search("needle"));
    EXPECT_FALSE(mSearch.IsFull());
    EXPECT_EQ(mSearch.Found().size(), 3U);
    EXPECT_TRUE(mSawDone);
    mSearch.End();
    EXPECT_FALSE(mSearch.IsOn());
    EXPECT_TRUE(mSearch.Found().empty());
}

TEST_F(LogSearchTest, None_TheEndIsToldOnce)
{
    AddMany(3);
    ASSERT_TRUE(Search("haystack"));
    EXPECT_EQ(mNews, 1);
}

}
