#include "terminal/Arguments.h"

#include "terminal/UsageError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

const Date Now = Date::FromParts({ 2006, 3, 1, 9, 5, 7 });

}

TEST(ArgumentsTest, ToDay_Words_CountFromNow)
{
    EXPECT_EQ(ToDay("--from", "today", Now), Date::FromYearMonthDay(2006, 3, 1));
    EXPECT_EQ(ToDay("--from", "yesterday", Now), Date::FromYearMonthDay(2006, 2, 28));
}

TEST(ArgumentsTest, ToDay_Days_AreRead)
{
    EXPECT_EQ(ToDay("--from", "2008-02-29", Now), Date::FromYearMonthDay(2008, 2, 29));
    EXPECT_EQ(ToDay("--from", "0100-01-01", Now), Date::FromYearMonthDay(100, 1, 1));
    EXPECT_EQ(ToDay("--from", "9999-12-31", Now), Date::FromYearMonthDay(9999, 12, 31));
}

class BadDayTest : public testing::TestWithParam<const char*>
{
};

TEST_P(BadDayTest, ToDay_OtherText_IsRefusedWithAdvice)
{
    EXPECT_THAT([] { ToDay("--from", GetParam(), Now); },
        ThrowsMessage<UsageError>(testing::AllOf(HasSubstr("--from can't be \""), HasSubstr("YYYY-MM-DD"))));
}

INSTANTIATE_TEST_SUITE_P(Texts, BadDayTest,
    testing::Values("", "Today", "tomorrow", "2006-2-28", "2006-02-29", "2006-13-01", "2006-00-01", "2006-01-00",
        "2006-01-32", "0099-01-01", "0000-01-01", "06-01-01", "2006/01/01", "20060101", "2006-01-01 ", " 2006-01-01",
        "2006-01-01T00:00", "-006-01-01", "2006-0a-01", "+006-01-01"));

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

TEST(ArgumentsTest, ToMomentWithSeconds_Moment_IsRead)
{
    EXPECT_EQ(ToMomentWithSeconds("--now", "2006-10-10T09:05:59"), Date::FromParts({ 2006, 10, 10, 9, 5, 59 }));
    EXPECT_THROW(ToMomentWithSeconds("--now", "2006-10-10T09:05:60"), UsageError);
    EXPECT_THROW(ToMomentWithSeconds("--now", "2006-10-10T09:05"), UsageError);
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
