#include "review/Period.h"

#include <gtest/gtest.h>

#include <string>

namespace tempodial {

namespace {

/// A day as year, month and day in a row.
Date DayOf(int key)
{
    return Date::FromYearMonthDay(key / 10000, key / 100 % 100, key % 100);
}

/// The span as "first-last" in day keys, seen on a day at 17:00, with weeks that begin on the given day, 1 Sunday.
std::string Seen(const std::string& words, int today = 20061010, int weekStart = 2)
{
    const auto period = Period::Named(words, DayOf(today).AddMinutes(17 * 60), [weekStart] { return weekStart; });
    return period ? period->first.DayKey() + "-" + period->last.DayKey() : "";
}

}

TEST(PeriodTest, Named_Days_AreOneDay)
{
    EXPECT_EQ(Seen("today"), "20061010-20061010");
    EXPECT_EQ(Seen("yesterday"), "20061009-20061009");
    EXPECT_EQ(Seen("yesterday", 20060301), "20060228-20060228");
    EXPECT_EQ(Seen("2008-02-29"), "20080229-20080229");
    EXPECT_EQ(Seen("0100-01-01"), "01000101-01000101");
    EXPECT_EQ(Seen("9999-12-31"), "99991231-99991231");
}

TEST(PeriodTest, Named_Weekdays_AreTheLastSuchDayTodayIncluded)
{
    EXPECT_EQ(Seen("tuesday"), "20061010-20061010");
    EXPECT_EQ(Seen("monday"), "20061009-20061009");
    EXPECT_EQ(Seen("sunday"), "20061008-20061008");
    EXPECT_EQ(Seen("saturday"), "20061007-20061007");
    EXPECT_EQ(Seen("wednesday"), "20061004-20061004");
}

TEST(PeriodTest, Named_Weeks_BeginAsTold)
{
    EXPECT_EQ(Seen("week", 20061010, 2), "20061009-20061015");
    EXPECT_EQ(Seen("week", 20061010, 1), "20061008-20061014");
    EXPECT_EQ(Seen("week", 20061010, 3), "20061010-20061016");
    EXPECT_EQ(Seen("week", 20061010, 7), "20061007-20061013");
    EXPECT_EQ(Seen("week", 20061015, 2), "20061009-20061015");
    EXPECT_EQ(Seen("last-week", 20061010, 2), "20061002-20061008");
    EXPECT_EQ(Seen("last-week", 20061010, 1), "20061001-20061007");
}

TEST(PeriodTest, Named_MonthsAndYears_AreWhole)
{
    EXPECT_EQ(Seen("month"), "20061001-20061031");
    EXPECT_EQ(Seen("month", 20061231), "20061201-20061231");
    EXPECT_EQ(Seen("last-month"), "20060901-20060930");
    EXPECT_EQ(Seen("last-month", 20080331), "20080201-20080229");
    EXPECT_EQ(Seen("last-month", 20060115), "20051201-20051231");
    EXPECT_EQ(Seen("year"), "20060101-20061231");
    EXPECT_EQ(Seen("last-year"), "20050101-20051231");
    EXPECT_EQ(Seen("2026"), "20260101-20261231");
    EXPECT_EQ(Seen("2026-11"), "20261101-20261130");
    EXPECT_EQ(Seen("9999-12"), "99991201-99991231");
}

TEST(PeriodTest, Named_IsoWeeks_BelongToTheYearOfTheirThursday)
{
    EXPECT_EQ(Seen("2026-W47"), "20261116-20261122");
    EXPECT_EQ(Seen("2026-W01"), "20251229-20260104");
    EXPECT_EQ(Seen("2026-W53"), "20261228-20270103");
    EXPECT_EQ(Seen("2027-W01"), "20270104-20270110");
    EXPECT_EQ(Seen("2025-W52"), "20251222-20251228");
    for (const auto* words : { "2025-W53", "2026-W00", "2026-W54", "2026-W1", "2026-w47", "2026-W471", "2026W47" }) {
        EXPECT_EQ(Seen(words), "") << words;
    }
}

TEST(PeriodTest, Named_DaysBack_CountToday)
{
    EXPECT_EQ(Seen("-1d"), "20061010-20061010");
    EXPECT_EQ(Seen("-7d"), "20061004-20061010");
    EXPECT_EQ(Seen("-99999d").substr(8), "-20061010");
    for (const auto* words : { "-0d", "-d", "7d", "-7", "--7d", "-+7d", "-7D", "-100000d", "-7d " }) {
        EXPECT_EQ(Seen(words), "") << words;
    }
}

TEST(PeriodTest, Named_OtherTexts_AreNone)
{
    for (const auto* words :
        { "", "tomorrow", "Today", "MONDAY", "weeks", "last-day", "0099", "206", "20061", "2006-", "2006-1", "2006-00",
            "2006-13", "2006-02-29", "2006-10-00", "2006-10-32", "2006-10-1", "2006-10-100", "2006/10/10", "2006-10/10",
            "-006-10-10", "2006--1-10", "2006-10--1", " 2006", "2006-10-10T09:00", "2006-2-28", "2006-13-01",
            "2006-00-01", "0099-01-01", "06-01-01", "20060101", "2006-01-01 ", "2006-0a-01", "+006-01-01" }) {
        EXPECT_EQ(Seen(words), "") << words;
    }
}

}
