#include "desktop/ActivityWords.h"

#include "host/system/IcuLocaleFormats.h"
#include "review/Activities.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

class ActivityWordsTest : public testing::Test
{
protected:
    Activity mActivity = ActivityOn(9, 545, 620, "Riverside");
    ActivityWords mWords { MakeRef<IcuLocaleFormats>("en_GB"), Titles::Shown };
    ActivityWords mDiscreet { MakeRef<IcuLocaleFormats>("en_GB"), Titles::Hidden };
};

Period Days(int year, int month, int day, int count)
{
    const auto first = Date::FromYearMonthDay(year, month, day);
    return { first, first.AddDays(count - 1) };
}

}

TEST_F(ActivityWordsTest, Title_Activity_IsItsDescriptionOrApplication)
{
    EXPECT_EQ(mWords.Title(mActivity), "a.doc");
    EXPECT_EQ(mDiscreet.Title(mActivity), "Word");
    mActivity.description = "";
    EXPECT_EQ(mWords.Title(mActivity), "Word");
    mActivity.type = "";
    EXPECT_EQ(mWords.Title(mActivity), "Riverside");
}

TEST_F(ActivityWordsTest, Detail_Activity_SaysWhatTheTitleDoesNot)
{
    EXPECT_EQ(mWords.Detail(mActivity, Coloured::Project), "Riverside · Word");
    EXPECT_EQ(mWords.Detail(mActivity, Coloured::Application), "Word");
    EXPECT_EQ(mDiscreet.Detail(mActivity, Coloured::Project), "Riverside");
    EXPECT_EQ(mDiscreet.Detail(mActivity, Coloured::Application), "");
    mActivity.project = "";
    EXPECT_EQ(mWords.Detail(mActivity, Coloured::Project), "No Project · Word");
}

TEST_F(ActivityWordsTest, Times_Locale_GivesTheirForm)
{
    EXPECT_EQ(mWords.Times(mActivity), "09:05 – 10:20");
    EXPECT_EQ(ActivityWords(MakeRef<IcuLocaleFormats>("en_US"), Titles::Shown).Times(mActivity), "9:05 AM – 10:20 AM");
}

TEST_F(ActivityWordsTest, Summary_OneOrSeveral_SayTheirLength)
{
    const auto monday = mActivity.start.Day();
    const auto dated
        = "Mon " + MakeRef<IcuLocaleFormats>("en_GB")->ShortDate(monday) + " 09:05 – 10:20 · 1 h 15 · Word";
    EXPECT_EQ(mWords.Summary(mActivity, { monday, monday.AddDays(6) }), "Mon 09:05 – 10:20 · 1 h 15 · Word");
    EXPECT_EQ(mWords.Summary(mActivity, { monday.AddDays(1), monday.AddDays(7) }), dated);
    EXPECT_EQ(mWords.Summary(mActivity, { monday, monday.AddDays(7) }), dated) << "two such days are shown";
    EXPECT_EQ(ActivityWords::Summary({ mActivity, mActivity }), "2 activities · 2 h 30");
}

TEST_F(ActivityWordsTest, Spoken_Activity_HasDayTimesAndProject)
{
    EXPECT_EQ(mWords.Spoken(mActivity), "a.doc, Monday, 9 October 2006, 09:05 to 10:20, Riverside");
    mActivity.project = "";
    EXPECT_EQ(mDiscreet.Spoken(mActivity), "Word, Monday, 9 October 2006, 09:05 to 10:20, No Project");
}

TEST_F(ActivityWordsTest, Described_Activity_HasLengthAndApplicationOnce)
{
    EXPECT_EQ(mWords.Described(mActivity), "1 h 15, Word");
    EXPECT_EQ(mDiscreet.Described(mActivity), "1 h 15");
}

TEST_F(ActivityWordsTest, ShortLabel_OneOrSeveral_NamesThemOrTheirApplications)
{
    EXPECT_EQ(mWords.ShortLabel({ mActivity }), "a.doc");
    EXPECT_EQ(mWords.ShortLabel({ mActivity, ActivityOn(9, 1, 2, "", "Writer"), mActivity }), "3 short · Word, Writer");
}

TEST_F(ActivityWordsTest, PeriodTitle_Days_NameWhatDiffersOnce)
{
    EXPECT_EQ(mWords.PeriodTitle(Days(2026, 11, 16, 7)), "16 – 22 Nov 2026");
    EXPECT_EQ(mWords.PeriodTitle(Days(2026, 10, 26, 7)), "26 Oct – 1 Nov 2026");
    EXPECT_EQ(mWords.PeriodTitle(Days(2026, 12, 28, 7)), "28 Dec 2026 – 3 Jan 2027");
    EXPECT_EQ(mWords.PeriodTitle(Days(2006, 10, 9, 1)), "Monday, 9 October 2006");
}

TEST_F(ActivityWordsTest, WeekTitle_SevenDays_AreTheWeekOfTheirThursday)
{
    EXPECT_EQ(ActivityWords::WeekTitle(Days(2026, 11, 16, 7)), "Week 47");
    EXPECT_EQ(ActivityWords::WeekTitle(Days(2026, 11, 15, 7)), "Week 47");
    EXPECT_EQ(ActivityWords::WeekTitle(Days(2026, 12, 28, 7)), "Week 53");
    EXPECT_EQ(ActivityWords::WeekTitle(Days(2025, 12, 29, 7)), "Week 1");
    EXPECT_EQ(ActivityWords::WeekTitle(Days(2026, 11, 16, 5)), "");
}

}
