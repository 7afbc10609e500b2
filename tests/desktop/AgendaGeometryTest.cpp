#include "desktop/AgendaGeometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tempodial {

namespace {

AgendaPiece Piece(int day, int from, int to, int lane = 0, int lanes = 1)
{
    AgendaPiece piece;
    piece.day = day;
    piece.span = { from * 60, to * 60 };
    piece.lane = lane;
    piece.lanes = lanes;
    return piece;
}

}

TEST(AgendaGeometryTest, Column_Days_ShareTheWidthWithoutGaps)
{
    const AgendaGeometry geometry(TimeScale(1), 7, 54, 1000);
    EXPECT_EQ(geometry.Column(0).left, 54);
    for (int day = 0; day < 6; ++day) {
        EXPECT_EQ(geometry.Column(day).Right(), geometry.Column(day + 1).left);
    }
    EXPECT_EQ(geometry.Column(6).Right(), 1054);
    EXPECT_EQ(geometry.Column(3).height, 1440);
}

TEST(AgendaGeometryTest, DayAt_Place_IsThatOfItsColumn)
{
    const AgendaGeometry geometry(TimeScale(1), 7, 54, 1000);
    EXPECT_EQ(geometry.DayAt(53.9), std::nullopt);
    EXPECT_EQ(geometry.DayAt(54), 0);
    EXPECT_EQ(geometry.DayAt(geometry.Column(3).left), 3);
    EXPECT_EQ(geometry.DayAt(geometry.Column(3).left - 1), 2);
    EXPECT_EQ(geometry.DayAt(1054), std::nullopt);
}

TEST(AgendaGeometryTest, BoxOf_Piece_IsAsHighAsItsTime)
{
    const AgendaGeometry geometry(TimeScale(2), 1, 50, 107);
    EXPECT_EQ(geometry.BoxOf(Piece(0, 600, 660)), (PixelBox { 53, 1200, 100, 120 }));
}

TEST(AgendaGeometryTest, BoxOf_Lanes_StandSideBySide)
{
    const AgendaGeometry geometry(TimeScale(2), 1, 50, 107);
    EXPECT_EQ(geometry.BoxOf(Piece(0, 600, 660, 0, 2)), (PixelBox { 53, 1200, 48, 120 }));
    EXPECT_EQ(geometry.BoxOf(Piece(0, 600, 660, 1, 2)), (PixelBox { 103, 1200, 50, 120 }));
}

TEST(AgendaGeometryTest, BoxOf_TooLowForText_IsAStripe)
{
    const AgendaGeometry geometry(TimeScale(1), 1, 0, 107);
    EXPECT_FALSE(geometry.IsStripe(Piece(0, 600, 611)));
    ASSERT_TRUE(geometry.IsStripe(Piece(0, 600, 610)));
    EXPECT_EQ(geometry.BoxOf(Piece(0, 600, 610)), (PixelBox { 3, 600, 26, 10 }));
    EXPECT_EQ(geometry.LaneOf(Piece(0, 600, 610)), (PixelBox { 3, 600, 100, 10 }));
    EXPECT_EQ(geometry.BoxOf(Piece(0, 600, 610, 4, 5)).width, 20);
}

TEST(AgendaGeometryTest, BoxOf_NoTime_CanBeSeen)
{
    EXPECT_EQ(AgendaGeometry(TimeScale(0.5), 1, 0, 107).BoxOf(Piece(0, 600, 600)).height, 2);
}

TEST(AgendaGeometryTest, BoxOf_TwoHundredLanes_CoverEachOtherWithinTheColumn)
{
    const AgendaGeometry geometry(TimeScale(1), 1, 0, 107);
    double before = 0;
    for (int lane = 0; lane < 200; ++lane) {
        const auto box = geometry.BoxOf(Piece(0, 600, 660, lane, 200));
        EXPECT_GE(box.width, 13);
        EXPECT_GE(box.left, before);
        EXPECT_LE(box.Right(), 103);
        before = box.left;
    }
    EXPECT_EQ(geometry.BoxOf(Piece(0, 600, 660, 199, 200)).Right(), 103);
}

TEST(AgendaGeometryTest, BoxOf_DevicePixels_AreWhole)
{
    const AgendaGeometry geometry(TimeScale(1.37, 1.25), 7, 54, 1001);
    for (int day = 0; day < 7; ++day) {
        const auto box = geometry.BoxOf(Piece(day, 487, 733));
        for (const auto edge : { box.left, box.top, box.Right(), box.Bottom() }) {
            EXPECT_NEAR(edge * 1.25, std::round(edge * 1.25), 1e-9);
        }
    }
}

TEST(AgendaGeometryTest, BoxOf_HardlyAnyWidth_IsNotNegative)
{
    EXPECT_GT(AgendaGeometry(TimeScale(1), 7, 0, 21).BoxOf(Piece(2, 0, 60, 3, 4)).width, 0);
}

}
