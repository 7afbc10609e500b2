#include "desktop/ShortRuns.h"

#include "review/Activities.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// One day, at a pixel a minute.
class ShortRunsTest : public testing::Test
{
protected:
    std::vector<ShortRun> Runs(const std::vector<Activity>& activities)
    {
        mLayout.emplace(activities, OctoberDays(9, 9));
        return ShortRunsOf(activities, *mLayout, mGeometry);
    }
    std::vector<PieceRange> Ranges(const std::vector<Activity>& activities)
    {
        std::vector<PieceRange> ranges;
        for (const auto& run : Runs(activities)) {
            ranges.push_back(run.pieces);
        }
        return ranges;
    }

    std::optional<AgendaLayout> mLayout;
    AgendaGeometry mGeometry { TimeScale(1), 1, 0, 107 };
};

}

TEST_F(ShortRunsTest, ShortRunsOf_StripesWithinFiveMinutes_AreOne)
{
    EXPECT_THAT(Ranges({ ActivityOn(9, 600, 605, "A"), ActivityOn(9, 609, 612, "B"), ActivityOn(9, 617, 619, "A") }),
        ElementsAre(PieceRange { 0, 2 }, PieceRange { 2, 3 }));
}

TEST_F(ShortRunsTest, ShortRunsOf_ActivityBetween_EndsTheRun)
{
    EXPECT_THAT(Ranges({ ActivityOn(9, 600, 602, "A"), ActivityOn(9, 602, 620, "B"), ActivityOn(9, 604, 606, "A") }),
        ElementsAre(PieceRange { 0, 1 }, PieceRange { 2, 3 }));
}

TEST_F(ShortRunsTest, ShortRunsOf_NoStripes_AreNone)
{
    EXPECT_THAT(Runs({ ActivityOn(9, 600, 630, "A"), ActivityOn(9, 700, 711, "A") }), IsEmpty());
    EXPECT_THAT(Runs({}), IsEmpty());
}

TEST_F(ShortRunsTest, ShortRunsOf_LongStripeFirst_ReachesToTheNext)
{
    EXPECT_THAT(Ranges({ ActivityOn(9, 600, 609, "A"), ActivityOn(9, 601, 602, "B"), ActivityOn(9, 613, 615, "A") }),
        ElementsAre(PieceRange { 0, 3 }));
}

TEST_F(ShortRunsTest, LabelBox_Room_IsBesideTheStripesBetweenTheNeighbours)
{
    const auto runs = Runs({ ActivityOn(9, 500, 590, "A"), ActivityOn(9, 600, 604, "B"), ActivityOn(9, 605, 608, "A"),
        ActivityOn(9, 620, 660, "C") });
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].room, (PixelBox { 34, 590, 69, 30 }));
    EXPECT_EQ(runs[0].LabelBox(16), (PixelBox { 34, 596, 69, 16 }));
    EXPECT_EQ(runs[0].LabelBox(30), (PixelBox { 34, 590, 69, 30 }));
    EXPECT_EQ(runs[0].LabelBox(31), std::nullopt);
}

TEST_F(ShortRunsTest, LabelBox_NeighbourNear_IsMovedAway)
{
    const auto runs
        = Runs({ ActivityOn(9, 500, 600, "A"), ActivityOn(9, 600, 604, "B"), ActivityOn(9, 640, 660, "C") });
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].LabelBox(16)->top, 600);
}

TEST_F(ShortRunsTest, LabelBox_ActivityBeside_LeavesNoRoomAboveTheStripes)
{
    const auto runs
        = Runs({ ActivityOn(9, 500, 700, "A"), ActivityOn(9, 600, 604, "B"), ActivityOn(9, 650, 652, "B") });
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].room, (PixelBox { 84, 600, 19, 50 }));
}

TEST_F(ShortRunsTest, LabelBox_NarrowLane_IsNone)
{
    mGeometry = AgendaGeometry(TimeScale(1), 1, 0, 30);
    const auto runs = Runs({ ActivityOn(9, 600, 604, "B") });
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].LabelBox(3), std::nullopt);
}

TEST_F(ShortRunsTest, Folded_NeighboursOfOneProject_GiveTheirColour)
{
    const auto folded = [this](int from, const std::string& project) {
        return Runs({ ActivityOn(9, 500, 600, "A"), ActivityOn(9, from, from + 2, "B"), ActivityOn(9, 607, 608, "C"),
                        ActivityOn(9, 612, 660, project) })
            .at(0)
            .folded;
    };
    EXPECT_EQ(folded(604, "a"), 0U);
    EXPECT_EQ(folded(604, "B"), std::nullopt);
    EXPECT_EQ(folded(605, "A"), std::nullopt);
}

TEST_F(ShortRunsTest, Folded_NoNeighbour_IsNone)
{
    const auto runs
        = Runs({ ActivityOn(9, 600, 602, "A"), ActivityOn(9, 603, 660, "A"), ActivityOn(9, 660, 662, "A") });
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].folded, std::nullopt);
    EXPECT_EQ(runs[1].folded, std::nullopt);
}

TEST_F(ShortRunsTest, Folded_NeighboursTooFarBehind_IsNone)
{
    const auto runs
        = Runs({ ActivityOn(9, 500, 600, "A"), ActivityOn(9, 601, 602, "B"), ActivityOn(9, 607, 660, "A") });
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0].folded, std::nullopt);
}

TEST(ShortRunsOfDaysTest, ShortRunsOf_SeveralDays_AreApart)
{
    const std::vector<Activity> activities { ActivityOn(9, 1438, 1440, "A"), ActivityOn(10, 0, 2, "A"),
        ActivityOn(10, 3, 4, "A") };
    const AgendaLayout layout(activities, OctoberDays(9, 10));
    const auto runs = ShortRunsOf(activities, layout, AgendaGeometry(TimeScale(1), 2, 0, 200));
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[1].pieces, (PieceRange { 1, 3 }));
    EXPECT_GT(runs[1].room.left, 100);
}

}
