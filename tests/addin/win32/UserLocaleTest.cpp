#include "addin/win32/UserLocale.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(UserLocaleTest, ToDatePattern_SystemsNotation_BecomesOurs)
{
    EXPECT_EQ(ToDatePattern("dddd, MMMM d, yyyy"), "EEEE, MMMM d, yyyy");
    EXPECT_EQ(ToDatePattern("ddd dd.MM.yy"), "EEE dd.MM.yy");
    EXPECT_EQ(ToDatePattern("h:mm:ss tt"), "h:mm:ss a");
    EXPECT_EQ(ToDatePattern("d 'de' MMMM 'd''été' gg"), "d 'de' MMMM 'd''été' ");
    EXPECT_EQ(ToDatePattern(""), "");
}

TEST(UserLocaleTest, UnitedStates_AreWrittenAsTheHostHasThem)
{
    PatternFormats formats(PatternsOfLocale("en-US"));
    const auto moment = Date::FromParts({ 2006, 10, 10, 9, 5, 0 });
    EXPECT_EQ(formats.ShortDate(moment), "10/10/2006");
    EXPECT_EQ(formats.LongDate(moment), "Tuesday, October 10, 2006");
    EXPECT_EQ(formats.MediumDate(moment), "10-Oct-06");
    EXPECT_EQ(formats.ShortTime(moment), "9:05 AM");
    EXPECT_EQ(formats.LongTime(moment), "9:05:00 AM");
    EXPECT_EQ(formats.MonthAbbreviation(12), "Dec");
}

TEST(UserLocaleTest, Dates_WithOrWithoutWeekday_AreRead)
{
    PatternFormats formats(PatternsOfLocale("en-US"));
    const auto moment = Date::FromParts({ 2006, 10, 10, 21, 5, 0 });
    for (const auto* text : { "10/10/2006 9:05 PM", "Tuesday, October 10, 2006 9:05:00 PM", "October 10, 2006 9:05 PM",
             "10/10/2006 21:05" }) {
        EXPECT_EQ(formats.Parse(text), moment) << text;
    }
    PatternFormats german(PatternsOfLocale("de-DE"));
    EXPECT_EQ(german.Parse(german.General(moment)), moment);
    EXPECT_EQ(german.Parse(german.LongDate(moment)), moment.Day());
}

TEST(UserLocaleTest, User_HasALocale)
{
    PatternFormats formats(PatternsOfUser());
    const auto moment = Date::FromParts({ 2006, 10, 10, 9, 5, 0 });
    EXPECT_EQ(formats.Parse(formats.General(moment)), moment);
}

}
