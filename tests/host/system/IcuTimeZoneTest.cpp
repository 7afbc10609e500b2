#include "host/system/IcuTimeZone.h"

#include "base/Failure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

constexpr std::int64_t Noon = 1795262400; // 2026-11-21T12:00:00Z

}

TEST(IcuTimeZoneTest, OffsetAt_Seasons_Differ)
{
    IcuTimeZone zone("Europe/Zurich");
    EXPECT_EQ(zone.OffsetAt(Noon), 3600);
    EXPECT_EQ(zone.OffsetAt(Noon - 150 * 86400), 7200);
    EXPECT_EQ(IcuTimeZone("Asia/Kolkata").OffsetAt(Noon), 19800);
    EXPECT_EQ(IcuTimeZone("America/St_Johns").OffsetAt(Noon), -12600);
}

TEST(IcuTimeZoneTest, MomentOf_LocalTime_IsFoundAgain)
{
    IcuTimeZone zone("Europe/Zurich");
    EXPECT_EQ(zone.MomentOf(Date::FromParts({ 2026, 11, 21, 13, 0, 0 })), Noon);
    EXPECT_EQ(zone.MomentOf(Date::FromParts({ 2026, 6, 24, 14, 0, 0 })), Noon - 150 * 86400);
    // 02:30 comes twice on that day, and the first is meant.
    EXPECT_EQ(zone.MomentOf(Date::FromParts({ 2026, 10, 25, 2, 30, 0 }))
            - zone.MomentOf(Date::FromParts({ 2026, 10, 25, 1, 30, 0 })),
        3600);
    // 02:30 never comes on that day.
    EXPECT_EQ(zone.MomentOf(Date::FromParts({ 2026, 3, 29, 2, 30, 0 }))
            - zone.MomentOf(Date::FromParts({ 2026, 3, 29, 1, 30, 0 })),
        3600);
}

TEST(IcuTimeZoneTest, IcuTimeZone_UnknownName_Fails)
{
    EXPECT_THROW(IcuTimeZone("Europe/Atlantis"), Failure);
    EXPECT_THROW(IcuTimeZone(""), Failure);
    EXPECT_THAT(IcuTimeZone::Names(), testing::Contains("Europe/Zurich"));
}

}
