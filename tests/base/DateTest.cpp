#include "base/Date.h"

#include "base/Failure.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

namespace tempodial {
namespace {

constexpr std::int64_t Hour = 3600;

Date On(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return Date::FromParts({ year, month, day, hour, minute, second });
}

TEST(DateTest, Unset_IsTheZeroMoment)
{
    const auto parts = Date().ToParts();
    EXPECT_EQ(parts.year, 1899);
    EXPECT_EQ(parts.month, 12);
    EXPECT_EQ(parts.day, 30);
    EXPECT_EQ(Date().Seconds(), 0);
    EXPECT_EQ(Date(), On(1899, 12, 30));
}

TEST(DateTest, FromParts_AnyMoment_ComesBack)
{
    for (const auto date : { On(100, 1, 1), On(1899, 12, 29, 23, 59, 59), On(1900, 2, 28), On(2000, 2, 29, 12),
             On(2006, 10, 10, 9, 5, 1), On(9999, 12, 31, 23, 59, 59) }) {
        EXPECT_EQ(Date::FromParts(date.ToParts()), date) << date.Seconds();
    }
    EXPECT_EQ(On(2006, 10, 10).Seconds(), 3369600000);
    EXPECT_EQ(On(1899, 12, 29, 23, 59, 59).Seconds(), -1);
}

TEST(DateTest, FromYearMonthDay_PartsOutOfRange_RollOver)
{
    const struct
    {
        std::int32_t year, month, day;
        std::string expected;
    } rows[] = {
        { 2006, 2, 31, "20060303" },
        { 2008, 2, 31, "20080302" },
        { 2006, 4, 31, "20060501" },
        { 2006, 0, 10, "20051210" },
        { 2006, 13, 1, "20070101" },
        { 2006, 0, 0, "20051130" },
        { 2006, 3, 0, "20060228" },
        { 2006, 1, -1, "20051230" },
        { 2006, 12, 32, "20070101" },
        { 2006, -12, 1, "20041201" },
        { 2006, -11, 1, "20050101" },
        { 0, 1, 1, "20000101" },
        { 6, 10, 10, "20061010" },
        { 29, 1, 1, "20290101" },
        { 30, 1, 1, "19300101" },
        { 99, 1, 1, "19990101" },
        { 100, 1, 1, "01000101" },
        { 9999, 12, 31, "99991231" },
        { 10000, 0, 31, "99991231" },
        { 2006, 10, 32767, "20960616" },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Date::FromYearMonthDay(row.year, row.month, row.day).DayKey(), row.expected)
            << row.year << " " << row.month << " " << row.day;
    }
}

TEST(DateTest, FromYearMonthDay_OutsideTheCalendar_Fails)
{
    EXPECT_EQ(FailureNumber([] { Date::FromYearMonthDay(10000, 1, 1); }), 5);
    EXPECT_EQ(FailureNumber([] { Date::FromYearMonthDay(9999, 12, 32); }), 5);
    EXPECT_EQ(FailureNumber([] { Date::FromYearMonthDay(100, 1, 0); }), 5);
    EXPECT_EQ(FailureNumber([] { Date::FromYearMonthDay(-1, 1, 1); }), 5);
    EXPECT_EQ(FailureNumber([] { Date::FromYearMonthDay(32767, 32767, 32767); }), 5);
    EXPECT_EQ(FailureNumber([] { Date::FromYearMonthDay(-32768, -32768, -32768); }), 5);
}

TEST(DateTest, FromYearMonthDay_PartBeyond16Bits_Overflows)
{
    constexpr auto Largest = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(FailureNumber([] { Date::FromYearMonthDay(40000, 1, 1); }), 6);
    EXPECT_EQ(FailureNumber([] { Date::FromYearMonthDay(2006, Largest, 1); }), 6);
    EXPECT_EQ(FailureNumber([] { Date::FromYearMonthDay(2006, 1, -40000); }), 6);
}

TEST(DateTest, FromTexts_TextsOfNumbers_AreRead)
{
    EXPECT_EQ(Date::FromTexts("2006", 10, "10").DayKey(), "20061010");
    EXPECT_EQ(Date::FromTexts("06", 10, "10").DayKey(), "20061010");
    EXPECT_EQ(Date::FromTexts("2006", 0, "10").DayKey(), "20051210");
    EXPECT_EQ(FailureNumber([] { Date::FromTexts("", 1, "1"); }), 13);
    EXPECT_EQ(FailureNumber([] { Date::FromTexts("abc", 1, "1"); }), 13);
    EXPECT_EQ(FailureNumber([] { Date::FromTexts("2006", 1, ""); }), 13);
    EXPECT_EQ(FailureNumber([] { Date::FromTexts("40000", 1, "1"); }), 6);
}

TEST(DateTest, Add_Base20061010_MovesTheMoment)
{
    const auto base = On(2006, 10, 10);
    EXPECT_EQ(base.AddSeconds(3600), On(2006, 10, 10, 1));
    EXPECT_EQ(base.AddSeconds(86399), On(2006, 10, 10, 23, 59, 59));
    EXPECT_EQ(base.AddSeconds(86400), On(2006, 10, 11));
    EXPECT_EQ(base.AddSeconds(90000), On(2006, 10, 11, 1));
    EXPECT_EQ(base.AddSeconds(-60), On(2006, 10, 9, 23, 59));
    EXPECT_EQ(base.AddMinutes(-1), On(2006, 10, 9, 23, 59));
    EXPECT_EQ(On(2006, 10, 10, 9, 5, 7).AddDays(-21), On(2006, 9, 19, 9, 5, 7));
}

TEST(DateTest, MinutesBetween_AnyMoments_CountsBoundaries)
{
    const auto at = [](int hour, int minute, int second) { return On(2006, 10, 10, hour, minute, second); };
    EXPECT_EQ(MinutesBetween(at(10, 0, 59), at(10, 1, 1)), 1);
    EXPECT_EQ(MinutesBetween(at(10, 0, 0), at(10, 0, 59)), 0);
    EXPECT_EQ(MinutesBetween(at(10, 0, 30), at(10, 5, 29)), 5);
    EXPECT_EQ(MinutesBetween(at(10, 1, 1), at(10, 0, 59)), -1);
    EXPECT_EQ(MinutesBetween(at(23, 59, 59), On(2006, 10, 11)), 1);
    EXPECT_EQ(MinutesBetween(On(2006, 3, 26, 1, 30), On(2006, 3, 26, 3, 30)), 120);
    EXPECT_EQ(MinutesBetween(Date(), On(2006, 10, 10)), 56160000);
    EXPECT_EQ(MinutesBetween(Date::FromSeconds(-1), Date()), 1) << "boundaries before the zero moment";
    EXPECT_EQ(MinutesBetween(Date::FromSeconds(-60), Date::FromSeconds(-1)), 0);
}

TEST(DateTest, MinutesBetween_Beyond32Bits_Overflows)
{
    constexpr std::int64_t Largest = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(MinutesBetween(Date(), Date().AddMinutes(Largest)), Largest);
    EXPECT_EQ(FailureNumber([] { MinutesBetween(Date(), Date().AddMinutes(Largest + 1)); }), 6);
    EXPECT_EQ(FailureNumber([] { MinutesBetween(Date(), Date().AddMinutes(-Largest - 2)); }), 6);
}

TEST(DateTest, DaysBetween_AnyMoments_CountsMidnights)
{
    EXPECT_EQ(DaysBetween(On(2006, 10, 10, 23, 59), On(2006, 10, 11, 0, 1)), 1);
    EXPECT_EQ(DaysBetween(On(2006, 10, 10), On(2006, 10, 10, 23, 59)), 0);
    EXPECT_EQ(DaysBetween(On(2006, 10, 11), On(2006, 10, 10, 23, 59)), -1);
}

TEST(DateTest, SecondsBetween_AnyMoments_IsNotLimitedTo32Bits)
{
    const auto ten = On(2006, 10, 10, 10);
    EXPECT_EQ(SecondsBetween(ten, ten.AddSeconds(19)), 19);
    EXPECT_EQ(SecondsBetween(ten, ten.AddSeconds(20)), 20);
    EXPECT_EQ(SecondsBetween(ten, On(2006, 10, 10, 9)), -3600);
    EXPECT_EQ(SecondsBetween(Date(), On(2006, 10, 10)), 3369600000);
}

TEST(DateTest, DayAndTime_AnyMoment_AreItsParts)
{
    const auto moment = On(2006, 10, 3, 21, 7, 9);
    EXPECT_EQ(moment.Day(), On(2006, 10, 3));
    EXPECT_EQ(moment.SecondOfDay(), 21 * Hour + 7 * 60 + 9);
    EXPECT_EQ(moment.Minute(), On(2006, 10, 3, 21, 7));
    EXPECT_EQ(moment.DayKey(), "20061003");
    EXPECT_EQ(moment.HourMinute(), "21:07");
    EXPECT_EQ(On(2006, 10, 10, 9, 5).HourMinute(), "09:05");

    const auto beforeZero = Date::FromSeconds(-1);
    EXPECT_EQ(beforeZero.Day(), On(1899, 12, 29));
    EXPECT_EQ(beforeZero.SecondOfDay(), 86399);
    EXPECT_EQ(beforeZero.Minute(), On(1899, 12, 29, 23, 59));
}

TEST(DateTest, Weekday_SundayToSaturday_IsOneToSeven)
{
    EXPECT_EQ(On(2006, 10, 8).Weekday(), 1);
    EXPECT_EQ(On(2006, 10, 9, 23, 59, 59).Weekday(), 2);
    EXPECT_EQ(On(2006, 10, 10).Weekday(), 3);
    EXPECT_EQ(On(2006, 10, 14).Weekday(), 7);
    EXPECT_EQ(Date().Weekday(), 7);
    EXPECT_EQ(Date::FromSeconds(-1).Weekday(), 6);
}

}
}
