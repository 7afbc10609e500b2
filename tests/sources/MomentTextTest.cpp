#include "sources/MomentText.h"

#include "host/system/IcuTimeZone.h"

#include <gtest/gtest.h>

#include <vector>

namespace tempodial {

namespace {

Date At(int month, int day, int hour, int minute = 0, int second = 0)
{
    return Date::FromParts({ 2026, month, day, hour, minute, second });
}

}

TEST(MomentTextTest, ReadMoment_Forms_AreRead)
{
    EXPECT_EQ(ReadMoment("2026-11-21T10:05:06.789Z")->written, At(11, 21, 10, 5, 6));
    EXPECT_EQ(ReadMoment("2026-11-21T10:05:06.789Z")->offset, 0);
    EXPECT_EQ(ReadMoment("2026-11-21T10:05:06.789Z")->milliseconds, 789);
    EXPECT_EQ(ReadMoment("2026-11-21T10:05:06.05")->milliseconds, 50);
    EXPECT_EQ(ReadMoment("2026-11-21T10:05:06.1234567Z")->milliseconds, 123);
    EXPECT_EQ(ReadMoment("2026-11-21 10:05+01:00")->offset, 3600);
    EXPECT_EQ(ReadMoment("2026-11-21T10:05:00-0330")->offset, -12600);
    EXPECT_EQ(ReadMoment("2026-11-21T10:05:00+02")->offset, 7200);
    EXPECT_FALSE(ReadMoment(" 2026-11-21 10:05 ")->offset);
    EXPECT_EQ(ReadMoment("1970-01-01T01:00:00+01:00")->Moment(), 0);
}

TEST(MomentTextTest, ReadMoment_OtherTexts_AreNone)
{
    for (const auto* text :
        { "", "2026-11-21", "2026-13-21T10:00", "2026-02-30T10:00", "2026-11-21T24:00", "21-11-2026T10:00",
            "2026-11-21T10:60", "2026-11-21T10:00 x", "2026-11-21T10:00+25:00", "2026-11-21x10:00" }) {
        EXPECT_FALSE(ReadMoment(text)) << text;
    }
}

TEST(MomentTextTest, ReadDay_Order_DecidesOnlyWithoutAYearInFront)
{
    EXPECT_EQ(ReadDay("03/04/2026", DateOrder::MonthFirst), At(3, 4, 0));
    EXPECT_EQ(ReadDay("03/04/2026", DateOrder::DayFirst), At(4, 3, 0));
    EXPECT_EQ(ReadDay("3.4.2026", DateOrder::DayFirst), At(4, 3, 0));
    EXPECT_EQ(ReadDay("2026-04-03", DateOrder::MonthFirst), At(4, 3, 0));
    EXPECT_FALSE(ReadDay("13/04/2026", DateOrder::MonthFirst));
    EXPECT_FALSE(ReadDay("13/13/2026", DateOrder::DayFirst));
    EXPECT_FALSE(ReadDay("04/2026", DateOrder::DayFirst));
}

TEST(MomentTextTest, ReadTime_TwelveAndTwentyFourHours_AreRead)
{
    EXPECT_EQ(ReadTime("09:30"), 34200);
    EXPECT_EQ(ReadTime("21:30:05"), 77405);
    EXPECT_EQ(ReadTime("9:30 PM"), 77400);
    EXPECT_EQ(ReadTime("12:00:00 AM"), 0);
    EXPECT_EQ(ReadTime("12:15 pm"), 44100);
    EXPECT_FALSE(ReadTime("13:00 PM"));
    EXPECT_FALSE(ReadTime("0:30 AM"));
    EXPECT_FALSE(ReadTime("noon"));
    EXPECT_EQ(ReadLength("100:00:01"), 360001);
    EXPECT_FALSE(ReadLength("1.5"));
}

TEST(MomentTextTest, ForLocalTimes_ClockPutBackAndForward_GivesEachPart)
{
    IcuTimeZone zone("Europe/Zurich");
    const auto local = [&zone](const char* from, const char* to) {
        std::vector<std::pair<std::string, std::string>> told;
        ForLocalTimes(
            zone, ReadMoment(from)->Moment(), ReadMoment(to)->Moment(), [&](std::int64_t begin, std::int64_t end) {
                told.emplace_back(Date::FromSeconds(begin).HourMinute(), Date::FromSeconds(end).HourMinute());
            });
        return told;
    };
    using Told = std::vector<std::pair<std::string, std::string>>;
    EXPECT_EQ(local("2026-07-01T10:00Z", "2026-07-01T11:00Z"), (Told { { "12:00", "13:00" } }));
    EXPECT_EQ(local("2026-10-25T00:30Z", "2026-10-25T01:30Z"), (Told { { "02:30", "03:00" }, { "02:00", "02:30" } }));
    EXPECT_EQ(local("2026-03-29T00:30Z", "2026-03-29T01:30Z"), (Told { { "01:30", "02:00" }, { "03:00", "03:30" } }));
    EXPECT_TRUE(local("2026-03-29T00:30Z", "2026-03-29T00:30Z").empty());
}

}
