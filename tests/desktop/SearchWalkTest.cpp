#include "desktop/SearchWalk.h"

#include "base/Failure.h"
#include "review/Activities.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace tempodial {

namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

/// Activities in memory, of which each takes its time to be read.
class SearchWalkTest : public testing::Test
{
protected:
    SearchWalk Walk(const std::string& typed)
    {
        return { SearchTerms(typed),
            { [this](const Period& days) { return Read(days); },
                [this](Date moment) { return LastStartBefore(moment); }, [this] { return mTime; } } };
    }
    std::vector<Activity> Read(const Period& days)
    {
        if (mFails) {
            throw Failure(Error::InvalidCall);
        }
        ++mReads;
        std::vector<Activity> found;
        for (const auto& activity : mActivities) {
            if (activity.start >= days.first && activity.start < days.last.AddDays(1)) {
                found.push_back(activity);
                mTime += mCost;
            }
        }
        return found;
    }
    std::optional<Date> LastStartBefore(Date moment) const
    {
        std::optional<Date> last;
        for (const auto& activity : mActivities) {
            if (activity.start < moment) {
                last = activity.start;
            }
        }
        return last;
    }
    /// The numbers of what a slice finds.
    std::vector<std::int64_t> Slice(SearchWalk& walk)
    {
        std::vector<std::int64_t> found;
        walk.GoOn([&found](Activity&& activity) { found.push_back(activity.number); });
        return found;
    }
    void Add(int day, int minute, const std::string& project)
    {
        mActivities.push_back(ActivityOn(day, minute, minute + 10, project));
        mActivities.back().number = static_cast<std::int64_t>(mActivities.size());
    }

    std::vector<Activity> mActivities;
    std::chrono::nanoseconds mTime {};
    std::chrono::nanoseconds mCost {};
    int mReads = 0;
    bool mFails = false;
};

}

TEST_F(SearchWalkTest, GoOn_FastStore_FindsAllInOneSlice)
{
    for (int day = -4000; day < 20; day += 400) {
        Add(day, 600, day % 800 == 0 ? "Alpha" : "Beta");
        Add(day, 700, "Alpha");
    }
    auto walk = Walk("alpha");
    EXPECT_FALSE(walk.IsDone());
    const auto found = Slice(walk);
    EXPECT_TRUE(walk.IsDone());
    EXPECT_EQ(walk.ReachedDay(), std::nullopt);
    EXPECT_EQ(found.size(), 17U);
    EXPECT_TRUE(std::is_sorted(found.rbegin(), found.rend()));
    EXPECT_LE(mReads, 11) << "years without activities are not read";
}

TEST_F(SearchWalkTest, GoOn_SlowStore_StopsAfterItsTime)
{
    mCost = milliseconds(3);
    for (int day = 1; day <= 9; ++day) {
        Add(day, 600, "A");
    }
    auto walk = Walk("a");
    std::vector<std::int64_t> all;
    int slices = 0;
    for (; !walk.IsDone(); ++slices) {
        const auto before = mTime;
        const auto found = Slice(walk);
        EXPECT_LE(mTime - before, milliseconds(8));
        all.insert(all.end(), found.begin(), found.end());
        if (!walk.IsDone()) {
            EXPECT_EQ(walk.ReachedDay(), Date::FromYearMonthDay(2006, 10, static_cast<int>(10 - all.size())));
        }
    }
    EXPECT_EQ(slices, 5);
    EXPECT_THAT(all, ElementsAre(9, 8, 7, 6, 5, 4, 3, 2, 1));
}

TEST_F(SearchWalkTest, GoOn_ADayThatIsTooLong_IsReadAllTheSame)
{
    mCost = milliseconds(20);
    Add(1, 600, "A");
    Add(2, 600, "A");
    auto walk = Walk("");
    EXPECT_THAT(Slice(walk), ElementsAre(2));
    EXPECT_THAT(Slice(walk), ElementsAre(1));
    EXPECT_TRUE(walk.IsDone());
}

TEST_F(SearchWalkTest, GoOn_ReadingFails_CanBeRepeated)
{
    Add(1, 600, "A");
    auto walk = Walk("a");
    mFails = true;
    EXPECT_THROW(Slice(walk), Failure);
    EXPECT_FALSE(walk.IsDone());
    mFails = false;
    EXPECT_THAT(Slice(walk), ElementsAre(1));
}

TEST_F(SearchWalkTest, GoOn_EmptyStore_IsDoneAtOnce)
{
    auto walk = Walk("a");
    EXPECT_TRUE(walk.IsDone());
    EXPECT_THAT(Slice(walk), IsEmpty());
}

}
