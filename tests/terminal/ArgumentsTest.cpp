#include "terminal/Arguments.h"

#include "terminal/UsageError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

}

TEST(ArgumentsTest, ToMoment_Moment_IsRead)
{
    EXPECT_EQ(ToMoment("--from", "2006-10-10T23:59"), Date::FromParts({ 2006, 10, 10, 23, 59, 0 }));
    EXPECT_EQ(ToMoment("--from", "2006-10-10T00:00"), Date::FromYearMonthDay(2006, 10, 10));
}

TEST(ArgumentsTest, ToMoment_OtherText_IsRefused)
{
    for (const auto* text : { "", "today", "2006-10-10", "2006-10-10T24:00", "2006-10-10T10:60", "2006-10-10 10:00",
             "2006-10-10T1:00", "2006-10-10T10:00:00", "2006-02-30T10:00" }) {
        EXPECT_THROW(ToMoment("--from", text), UsageError) << text;
    }
}

TEST(ArgumentsTest, ToMomentOn_MomentOrTime_IsRead)
{
    const auto day = Date::FromYearMonthDay(2006, 10, 10);
    EXPECT_EQ(ToMomentOn(day, "--at", "23:59"), Date::FromParts({ 2006, 10, 10, 23, 59, 0 }));
    EXPECT_EQ(ToMomentOn(day.AddMinutes(90), "--at", "00:00"), day);
    EXPECT_EQ(ToMomentOn(day, "--at", "2006-10-09T10:00"), Date::FromParts({ 2006, 10, 9, 10, 0, 0 }));
    for (const auto* text : { "", "24:00", "9:00", "09:60", "09:00:00", "today", "2006-10-10" }) {
        EXPECT_THROW(ToMomentOn(day, "--at", text), UsageError) << text;
    }
}

TEST(ArgumentsTest, ToMomentWithSeconds_Moment_IsRead)
{
    EXPECT_EQ(ToMomentWithSeconds("--now", "2006-10-10T09:05:59"), Date::FromParts({ 2006, 10, 10, 9, 5, 59 }));
    EXPECT_THROW(ToMomentWithSeconds("--now", "2006-10-10T09:05:60"), UsageError);
    EXPECT_THROW(ToMomentWithSeconds("--now", "2006-10-10T09:05"), UsageError);
}

TEST(ArgumentsTest, ToActivityNumber_SignAndNumber_IsRead)
{
    EXPECT_EQ(ToActivityNumber("@1"), 1);
    EXPECT_EQ(ToActivityNumber("@1234567890123"), 1'234'567'890'123);
}

TEST(ArgumentsTest, ToActivityNumber_OtherText_IsRefused)
{
    for (const auto* text : { "", "@", "1", "@x", "@1x", "@-1", "@+1", "@ 1", "@@1", "@99999999999999999999" }) {
        EXPECT_THAT([&] { ToActivityNumber(text); }, ThrowsMessage<UsageError>(HasSubstr("names no activity: give")))
            << text;
    }
}

TEST(ArgumentsTest, ToCount_WholeNumberWithinBounds_IsRead)
{
    EXPECT_EQ(ToCount("--days", "1", 1, 22), 1);
    EXPECT_EQ(ToCount("--days", "22", 1, 22), 22);
}

TEST(ArgumentsTest, ToCount_OtherText_IsRefusedWithTheBounds)
{
    for (const auto* text : { "", "0", "23", "-1", "+1", "1.0", "1e1", "0x1", " 1", "1 ", "x", "99999999999" }) {
        EXPECT_THAT([text] { ToCount("--days", text, 1, 22); },
            ThrowsMessage<UsageError>(HasSubstr("a whole number from 1 to 22")))
            << text;
    }
}

TEST(ArgumentsTest, IsoTexts_Moment_HaveAllDigits)
{
    const auto moment = Date::FromParts({ 987, 1, 2, 3, 4, 5 });
    EXPECT_EQ(IsoMoment(moment), "0987-01-02T03:04:05");
    EXPECT_EQ(IsoDay(moment), "0987-01-02");
}

TEST(ArgumentsTest, ToHive_Names_AreReadInAnyCase)
{
    EXPECT_EQ(ToHive("HKCU"), Hive::CurrentUser);
    EXPECT_EQ(ToHive("hklm"), Hive::LocalMachine);
    EXPECT_THAT([] { ToHive("HKEY"); }, ThrowsMessage<UsageError>(HasSubstr("there is no hive \"HKEY\"")));
}

}
