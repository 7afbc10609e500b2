#include "host/system/HostClock.h"

#include "support/ManualClock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <string>
#include <thread>

namespace tempodial {
namespace {

class HostClockTest : public testing::Test
{
protected:
    void TearDown() override { SetZone(mZone); }

    static void SetZone(const std::string& zone)
    {
        ::setenv("TZ", zone.c_str(), 1);
        ::tzset();
    }
    static std::string TextOf(Date date)
    {
        const auto parts = date.ToParts();
        return date.DayKey() + " " + date.HourMinute() + ":" + std::to_string(parts.second);
    }

private:
    std::string mZone = std::getenv("TZ") == nullptr ? "UTC" : std::getenv("TZ");
};

TEST_F(HostClockTest, Now_WithoutStart_IsTheSystemsLocalTime)
{
    SetZone("TST-5:30");
    HostClock clock;
    const auto before = LocalTime().At(std::time(nullptr));
    const auto now = clock.Now();
    const auto after = LocalTime().At(std::time(nullptr));
    EXPECT_LE(before, now);
    EXPECT_LE(now, after);
    EXPECT_NE(now, Date());
}

TEST_F(HostClockTest, Now_WithStart_GoesOnFromThere)
{
    const auto start = Date::FromParts({ 2006, 10, 10, 23, 59, 59 });
    HostClock clock(start);
    const auto first = clock.Now();
    EXPECT_GE(first, start);
    EXPECT_LT(first, start.AddMinutes(10));
    EXPECT_GE(clock.Now(), first);
}

TEST_F(HostClockTest, Now_ASecondLater_IsASecondLater)
{
    const auto start = Date::FromParts({ 2006, 10, 10, 23, 59, 59 });
    HostClock clock(start);
    std::this_thread::sleep_for(std::chrono::milliseconds(1020));
    EXPECT_GE(clock.Now(), start.AddSeconds(1));
}

TEST_F(HostClockTest, Set_GoesOnFromThere)
{
    const auto moment = Date::FromParts({ 2006, 10, 10, 9, 0, 0 });
    HostClock system;
    HostClock fixed(moment.AddDays(1));
    for (auto* clock : { &system, &fixed }) {
        clock->Set(moment);
        const auto first = clock->Now();
        EXPECT_GE(first, moment);
        EXPECT_LT(first, moment.AddMinutes(10));
        EXPECT_GE(clock->Now(), first);
    }
}

TEST_F(HostClockTest, LocalTime_ZoneEastOfGreenwich_IsAhead)
{
    SetZone("TST-5:30");
    EXPECT_EQ(TextOf(LocalTime().At(0)), "19700101 05:30:0");
    EXPECT_EQ(TextOf(LocalTime().At(-1200)), "19700101 05:10:0");
    EXPECT_EQ(TextOf(LocalTime().At(1160471105)), "20061010 14:35:5");
}

TEST_F(HostClockTest, LocalTime_ClocksPutForwardAndBack_ShowsTheWall)
{
    SetZone("CET-1CEST,M3.5.0,M10.5.0/3");
    LocalTime local;
    const std::time_t forward = 1143334800; // 2006-03-26 01:00 UTC
    EXPECT_EQ(TextOf(local.At(forward - 1)), "20060326 01:59:59");
    EXPECT_EQ(TextOf(local.At(forward)), "20060326 03:00:0");
    EXPECT_EQ(TextOf(local.At(forward - 1)), "20060326 01:59:59");
    const std::time_t back = 1162083600; // 2006-10-29 01:00 UTC
    EXPECT_EQ(TextOf(local.At(back - 1)), "20061029 02:59:59");
    EXPECT_EQ(TextOf(local.At(back)), "20061029 02:00:0");
}

TEST_F(HostClockTest, UniversalNow_IsTheSameMomentInUniversalTime)
{
    SetZone("TST-5:30");
    HostClock system;
    const auto ahead = SecondsBetween(system.UniversalNow(), system.Now());
    EXPECT_GE(ahead, 19800);
    EXPECT_LT(ahead, 19860);
    HostClock fixed(Date::FromParts({ 2006, 10, 10, 2, 0, 0 }));
    EXPECT_GE(fixed.UniversalNow(), Date::FromParts({ 2006, 10, 9, 20, 30, 0 }));
    EXPECT_LT(fixed.UniversalNow(), Date::FromParts({ 2006, 10, 9, 20, 40, 0 }));
    fixed.Set(Date::FromParts({ 2007, 1, 2, 6, 0, 0 }));
    EXPECT_GE(fixed.UniversalNow(), Date::FromParts({ 2007, 1, 2, 0, 30, 0 }));
    EXPECT_LT(fixed.UniversalNow(), Date::FromParts({ 2007, 1, 2, 0, 40, 0 }));
}

TEST_F(HostClockTest, UniversalOf_ClocksPutForwardAndBack_GoesByThem)
{
    SetZone("CET-1CEST,M3.5.0,M10.5.0/3");
    EXPECT_EQ(TextOf(LocalTime::UniversalOf(Date::FromParts({ 2006, 7, 1, 12, 0, 5 }))), "20060701 10:00:5");
    EXPECT_EQ(TextOf(LocalTime::UniversalOf(Date::FromParts({ 2006, 12, 1, 0, 30, 0 }))), "20061130 23:30:0");
    // An hour that there isn't is one of those beside it.
    const auto gap = LocalTime::UniversalOf(Date::FromParts({ 2006, 3, 26, 2, 30, 0 }));
    EXPECT_GE(gap, Date::FromParts({ 2006, 3, 26, 0, 30, 0 }));
    EXPECT_LE(gap, Date::FromParts({ 2006, 3, 26, 1, 30, 0 }));
}

TEST_F(HostClockTest, ManualClock_SetAndAdvance_StandsWhereItWasPut)
{
    ManualClock clock(Date::FromYearMonthDay(2006, 10, 10));
    clock.Advance(61);
    EXPECT_EQ(TextOf(clock.Now()), "20061010 00:01:1");
    clock.Set(Date());
    EXPECT_EQ(clock.Now(), Date());
}

}
}
