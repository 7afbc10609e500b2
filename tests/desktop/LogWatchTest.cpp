#include "desktop/LogWatch.h"

#include "desktop/LogFixture.h"
#include "session/WorkLogFolder.h"
#include "support/TestMailbox.h"

namespace tempodial {

namespace {

class LogWatchTest : public LogFixture
{
protected:
    /// The log changes, and tells of it.
    Activity Changed(const std::string& description, Date start)
    {
        auto activity = Added(description, start);
        mSession.Idle();
        return activity;
    }
    void Rename(std::int64_t number, const std::string& subject = "other")
    {
        const auto item = ItemNumbered(mSession.Profile(), number);
        item->SetSubject(subject);
        item->Save();
        mSession.Idle();
    }
    bool HasChanged(std::int64_t since, const std::vector<Activity>& shown = {})
    {
        return mWatch.HasChanged(since, mDays, shown);
    }

    Period mDays { On(9, 0), On(10, 0) };
    LogWatch mWatch { mSession.Profile() };
};

}

TEST_F(LogWatchTest, Nothing_HasNotChanged)
{
    Changed("a", On(9, 9));
    EXPECT_GT(mWatch.Count(), 0);
    EXPECT_FALSE(HasChanged(mWatch.Count()));
    EXPECT_TRUE(HasChanged(0));
}

TEST_F(LogWatchTest, AnotherDay_ConcernsOnlyWhoeverShowsIt)
{
    Changed("a", On(9, 9));
    const auto before = mWatch.Count();
    const auto other = Changed("b", On(8, 9));
    EXPECT_FALSE(HasChanged(before));
    EXPECT_TRUE(HasChanged(before, { other })) << "it was shown, and may have been moved away";
    mDays.first = On(8, 0);
    EXPECT_TRUE(HasChanged(before));
}

TEST_F(LogWatchTest, Deleted_ConcernsWhoeverShowsIt)
{
    const auto activity = Changed("a", On(9, 9));
    const auto before = mWatch.Count();
    ItemNumbered(mSession.Profile(), activity.number)->Delete();
    mSession.Idle();
    EXPECT_TRUE(HasChanged(before, { activity }));
    EXPECT_FALSE(HasChanged(before));
}

TEST_F(LogWatchTest, ChangedInPlace_HasChanged)
{
    const auto activity = Changed("a", On(9, 9));
    const auto before = mWatch.Count();
    Rename(activity.number);
    EXPECT_TRUE(HasChanged(before));
}

TEST_F(LogWatchTest, AnotherFolder_ConcernsNobody)
{
    Changed("a", On(9, 9));
    const auto before = mWatch.Count();
    NewTestItem(mSession.Mailbox(), "elsewhere")->Save();
    mSession.Idle();
    EXPECT_EQ(mWatch.Count(), before);
}

TEST_F(LogWatchTest, MoreThanIsRemembered_IsTakenForAChange)
{
    const auto other = Changed("b", On(8, 9));
    const auto before = mWatch.Count();
    for (int i = 0; i < 65; ++i) {
        Rename(other.number, std::to_string(i));
    }
    EXPECT_TRUE(HasChanged(before));
    EXPECT_FALSE(HasChanged(before + 1));
}

}
