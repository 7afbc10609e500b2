#include "desktop/ShownLog.h"

#include "desktop/October.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

Activity Made(std::int64_t number, const std::string& project, const std::string& application, Date start, Date end)
{
    Activity activity;
    activity.number = number;
    activity.start = start;
    activity.end = end;
    activity.duration = MinutesBetween(start, end);
    activity.project = project;
    activity.type = application;
    return activity;
}

class ShownLogTest : public testing::Test
{
protected:
    std::vector<Activity> mStored { Made(1, "Alpha", "Writer", On(8, 23), On(9, 1)),
        Made(2, "Alpha", "Calc", On(9, 9), On(9, 10)), Made(3, "", "Mail", On(10, 9), On(10, 9, 30)) };
    std::vector<Period> mAsked;
    ShownLog mLog { [this](const Period& days) {
        mAsked.push_back(days);
        return mStored;
    } };
    const Period mWeek { On(9, 0), On(15, 0) };
};

}

TEST_F(ShownLogTest, Show_Days_HasTheirActivitiesAndSums)
{
    mLog.Show(mWeek);
    EXPECT_THAT(mAsked, testing::ElementsAre(mWeek));
    EXPECT_EQ(mLog.DayCount(), 7);
    EXPECT_EQ(mLog.Activities().size(), 3U);
    // What began before counts in the days before.
    EXPECT_THAT(mLog.Sums().minutes, testing::ElementsAre(60, 30, 0, 0, 0, 0, 0));
    EXPECT_EQ(mLog.Sums().total, 90);
    EXPECT_EQ(mLog.UnassignedMinutes(), 30);
    EXPECT_EQ(mLog.PlaceOf(3), 2U);
    EXPECT_EQ(mLog.PlaceOf(4), std::nullopt);
}

TEST_F(ShownLogTest, Show_ReaderFails_ShowsTheDaysBefore)
{
    mLog.Show(mWeek);
    ShownLog failing([](const Period& /*days*/) -> std::vector<Activity> { throw std::runtime_error("no"); });
    EXPECT_THROW(failing.Show(mWeek), std::runtime_error);
    EXPECT_EQ(failing.Days(), Period());
    EXPECT_FALSE(failing.HasAny());
}

TEST_F(ShownLogTest, Search_Words_HidesOthersAndKeepsTheSums)
{
    mLog.Show(mWeek);
    mLog.Search(SearchTerms("mail"));
    EXPECT_EQ(mLog.Activities().size(), 1U);
    EXPECT_TRUE(mLog.HasAny());
    EXPECT_EQ(mLog.Sums().total, 90);
    mLog.Read();
    EXPECT_EQ(mLog.Activities().size(), 1U);
}

TEST_F(ShownLogTest, Colour_Choice_SaysWhatGivesTheColour)
{
    mLog.Show(mWeek);
    EXPECT_EQ(mLog.ColouredBy(), Coloured::Project);
    EXPECT_EQ(mLog.ColourNameOf(mStored[2]), "No Project");
    EXPECT_EQ(mLog.Sums().rows.front().name, "Alpha");
    mLog.Colour(ColourChoice::Application);
    EXPECT_EQ(mLog.ColourNameOf(mStored[2]), "Mail");
    EXPECT_EQ(mLog.Sums().rows.front().name, "Calc");
}

}
