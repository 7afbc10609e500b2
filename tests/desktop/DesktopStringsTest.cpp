#include "desktop/DesktopStrings.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(DesktopStringsTest, LengthText_Minutes_AreHoursAndMinutes)
{
    EXPECT_EQ(LengthText(0), "0 min");
    EXPECT_EQ(LengthText(59), "59 min");
    EXPECT_EQ(LengthText(60), "1 h");
    EXPECT_EQ(LengthText(65), "1 h 05");
    EXPECT_EQ(LengthText(42 * 60), "42 h");
    EXPECT_EQ(LengthText(1000 * 60 + 30), "1000 h 30");
}

TEST(DesktopStringsTest, ShortOnesText_Applications_AreNamedOnce)
{
    EXPECT_EQ(ShortOnesText(4, { "Thunderbird", "Writer", "Thunderbird", "" }), "4 short · Thunderbird, Writer");
    EXPECT_EQ(ShortOnesText(2, { "", "" }), "2 short");
}

TEST(DesktopStringsTest, GroupText_Group_HasItsSum)
{
    EXPECT_EQ(GroupText("Riverside", 1, 70), "Riverside · 1 activity · 1 h 10");
    EXPECT_EQ(GroupText("No Project", 12, 45), "No Project · 12 activities · 45 min");
}

TEST(DesktopStringsTest, WeekdayText_Days_BeginWithSunday)
{
    EXPECT_EQ(WeekdayText(1), "Sun");
    EXPECT_EQ(WeekdayText(7), "Sat");
}

TEST(DesktopStringsTest, GapText_Length_IsSaid)
{
    EXPECT_EQ(GapText(45), "45 min without a record");
}

TEST(DesktopStringsTest, EmptyText_Reasons_DifferAndSayWhatHelps)
{
    EXPECT_NE(EmptyText(EmptyView::NothingRecorded), EmptyText(EmptyView::NothingInPeriod));
    EXPECT_NE(EmptyText(EmptyView::NothingFound).find("Escape"), std::string::npos);
}

TEST(DesktopStringsTest, PassedOverText_Activities_SaysWhatToDo)
{
    EXPECT_EQ(PassedOverText(1), "1 activity was passed over since it is open: set its project in its own window.");
    EXPECT_EQ(PassedOverText(2),
        "2 activities were passed over since they are open: set their projects in their own windows.");
}

}
