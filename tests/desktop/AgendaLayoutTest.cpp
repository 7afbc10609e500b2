#include "desktop/AgendaLayout.h"

#include "review/Activities.h"

#include <gmock/gmock.h>

#include <tuple>

namespace tempodial {

namespace {

using testing::ElementsAre;

using Lanes = std::pair<int, int>;

std::vector<Lanes> LanesOf(const AgendaLayout& layout)
{
    std::vector<Lanes> lanes;
    for (const auto& piece : layout.Pieces()) {
        lanes.emplace_back(piece.lane, piece.lanes);
    }
    return lanes;
}

/// Day, start and end in minutes, and whether it begins and ends there.
using Cut = std::tuple<int, int, int, bool, bool>;

std::vector<Cut> CutsOf(const AgendaLayout& layout)
{
    std::vector<Cut> cuts;
    for (const auto& piece : layout.Pieces()) {
        cuts.emplace_back(piece.day, piece.span.from / 60, piece.span.to / 60, piece.hasStart, piece.hasEnd);
    }
    return cuts;
}

Activity From(int day, int from, int to)
{
    return ActivityOn(day, from, to, "A");
}

}

TEST(AgendaLayoutTest, AgendaLayout_NothingShared_TakesWholeColumns)
{
    const AgendaLayout layout({ From(9, 540, 600), From(9, 600, 660), From(10, 540, 600) }, OctoberDays(9, 15));
    EXPECT_EQ(layout.Days(), 7);
    EXPECT_THAT(LanesOf(layout), ElementsAre(Lanes(0, 1), Lanes(0, 1), Lanes(0, 1)));
    EXPECT_EQ(layout.OfDay(0), (PieceRange { 0, 2 }));
    EXPECT_EQ(layout.OfDay(1), (PieceRange { 2, 3 }));
    EXPECT_TRUE(layout.OfDay(6).IsEmpty());
}

TEST(AgendaLayoutTest, AgendaLayout_SharedTime_TakesTheFirstFreeLaneOfItsCluster)
{
    // Three at 9:00 to 9:40, a chain over the second and third, and one alone.
    const AgendaLayout layout({ From(9, 540, 580), From(9, 545, 640), From(9, 550, 560), From(9, 560, 600),
                                  From(9, 590, 700), From(9, 700, 710) },
        OctoberDays(9, 9));
    EXPECT_THAT(
        LanesOf(layout), ElementsAre(Lanes(0, 3), Lanes(1, 3), Lanes(2, 3), Lanes(2, 3), Lanes(0, 3), Lanes(0, 1)));
}

TEST(AgendaLayoutTest, AgendaLayout_SameStart_LongestComesFirst)
{
    const AgendaLayout layout({ From(9, 540, 550), From(9, 540, 600) }, OctoberDays(9, 9));
    EXPECT_EQ(layout.Pieces()[0].activity, 1U);
    EXPECT_THAT(LanesOf(layout), ElementsAre(Lanes(0, 2), Lanes(1, 2)));
}

TEST(AgendaLayoutTest, AgendaLayout_NoTime_DoesNotCoverAnother)
{
    const AgendaLayout layout({ From(9, 540, 540), From(9, 540, 540), From(9, 541, 550) }, OctoberDays(9, 9));
    EXPECT_THAT(LanesOf(layout), ElementsAre(Lanes(0, 2), Lanes(1, 2), Lanes(0, 1)));
}

TEST(AgendaLayoutTest, AgendaLayout_Midnight_CutsPieces)
{
    const AgendaLayout layout(
        { From(9, 1380, 1440 + 60), From(10, 600, 1440), From(11, 1400, 3 * 1440) }, OctoberDays(9, 12));
    EXPECT_THAT(CutsOf(layout),
        ElementsAre(Cut(0, 1380, 1440, true, false), Cut(1, 0, 60, false, true), Cut(1, 600, 1440, true, true),
            Cut(2, 1400, 1440, true, false), Cut(3, 0, 1440, false, false)));
}

TEST(AgendaLayoutTest, AgendaLayout_OtherDays_AreLeftOut)
{
    const AgendaLayout layout(
        { From(7, 0, 10), From(8, 1430, 1440), From(8, 1430, 1440 + 5), From(11, 0, 10) }, OctoberDays(9, 10));
    EXPECT_THAT(CutsOf(layout), ElementsAre(Cut(0, 0, 5, false, true)));
    EXPECT_EQ(layout.Pieces()[0].activity, 2U);
}

TEST(AgendaLayoutTest, AgendaLayout_EndBeforeStart_IsAMoment)
{
    const AgendaLayout layout({ From(9, 600, 540) }, OctoberDays(9, 9));
    EXPECT_THAT(CutsOf(layout), ElementsAre(Cut(0, 600, 600, true, true)));
}

TEST(AgendaLayoutTest, Reaching_Span_FindsWhatBeganLongBefore)
{
    const AgendaLayout layout({ From(9, 480, 1000), From(9, 500, 510), From(9, 520, 530), From(9, 700, 710),
                                  From(9, 1010, 1020), From(9, 1100, 1100), From(10, 0, 1440) },
        OctoberDays(9, 10));
    EXPECT_EQ(layout.Reaching(0, { 705 * 60, 720 * 60 }), (PieceRange { 0, 4 }));
    EXPECT_EQ(layout.Reaching(0, { 1000 * 60, 1010 * 60 + 1 }), (PieceRange { 4, 5 }));
    EXPECT_EQ(layout.Reaching(0, { 1100 * 60, 1110 * 60 }), (PieceRange { 5, 6 }));
    EXPECT_TRUE(layout.Reaching(0, { 1020 * 60, 1100 * 60 }).IsEmpty());
    EXPECT_TRUE(layout.Reaching(0, { 1101 * 60, 1440 * 60 }).IsEmpty());
    EXPECT_EQ(layout.Reaching(1, { 0, 60 }), (PieceRange { 6, 7 }));
}

TEST(AgendaLayoutTest, Hours_Activities_HaveHalfAnHourAround)
{
    const auto hours = [](std::vector<Activity> activities) {
        return AgendaLayout(activities, OctoberDays(9, 11)).Hours({ 1, 2 });
    };
    EXPECT_EQ(hours({ From(9, 600, 660), From(10, 540, 550) }), (DaySpan { 510 * 60, 690 * 60 }));
    EXPECT_EQ(hours({ From(9, 10, 1435) }), (DaySpan { 0, 86400 }));
    EXPECT_EQ(hours({}), (DaySpan { 1, 2 }));
}

TEST(AgendaLayoutTest, AgendaLayout_TwoHundredAtOnce_HaveALaneEach)
{
    const std::vector<Activity> activities(200, From(9, 540, 600));
    const AgendaLayout layout(activities, OctoberDays(9, 9));
    ASSERT_EQ(layout.Pieces().size(), 200U);
    EXPECT_EQ(layout.Pieces().back().lane, 199);
    EXPECT_EQ(layout.Pieces().front().lanes, 200);
}

}
