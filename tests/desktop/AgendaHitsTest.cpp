#include "desktop/AgendaHits.h"

#include "desktop/AgendaGaps.h"
#include "review/Activities.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Part = AgendaHit::Part;

/// Two days of 100 pixels behind a gutter of 50, at a pixel a minute.
class AgendaHitsTest : public testing::Test
{
protected:
    AgendaHitsTest()
        : mRuns(ShortRunsOf(mActivities, mLayout, mGeometry))
        , mGaps(AgendaGaps(mActivities, mDays))
    {
    }

    AgendaHit At(double x, double y) const { return mHits.At(x, y); }
    Date Moment(int day, int minute) const { return mDays.first.AddDays(day).AddMinutes(minute); }

    Period mDays = OctoberDays(9, 10);
    std::vector<Activity> mActivities { ActivityOn(9, 540, 600, "A"), ActivityOn(9, 545, 640, "B"),
        ActivityOn(9, 700, 703, "A"), ActivityOn(9, 705, 708, "A"), ActivityOn(9, 1400, 1440 + 60, "A"),
        ActivityOn(10, 300, 315, "A"), ActivityOn(10, 330, 330, "A") };
    AgendaLayout mLayout { mActivities, mDays };
    AgendaGeometry mGeometry { TimeScale(1), 2, 50, 200 };
    std::vector<ShortRun> mRuns;
    std::vector<Gap> mGaps;
    AgendaHits mHits { { mLayout, mGeometry, mRuns, mGaps, mDays.first, 14 } };
};

}

TEST_F(AgendaHitsTest, At_Activity_IsItsBodyOrAnEdge)
{
    for (const auto& [y, part] : { std::pair(540.0, Part::Start), { 544.9, Part::Start }, { 545.0, Part::Body },
             { 594.9, Part::Body }, { 595.0, Part::End }, { 599.9, Part::End } }) {
        const auto hit = At(60, y);
        EXPECT_EQ(hit.part, part) << y;
        EXPECT_EQ(hit.index, 0U) << y;
    }
    EXPECT_EQ(At(60, 570).moment, Moment(0, 570));
    EXPECT_EQ(At(120, 570).index, 1U);
}

TEST_F(AgendaHitsTest, MomentNear_BesideTheDays_IsThatOfTheNearestPlace)
{
    EXPECT_EQ(mHits.MomentNear(60, 570), Moment(0, 570));
    EXPECT_EQ(mHits.MomentNear(20, 570), Moment(0, 570));
    EXPECT_EQ(mHits.MomentNear(-5, 570), Moment(0, 570));
    EXPECT_EQ(mHits.MomentNear(900, 570), Moment(1, 570));
    EXPECT_EQ(mHits.MomentNear(60, -10), Moment(0, 0));
    EXPECT_EQ(mHits.MomentNear(60, 5000), Moment(0, 1439));
}

TEST_F(AgendaHitsTest, At_LowActivity_HasNoEdges)
{
    EXPECT_EQ(At(160, 300).part, Part::Body);
    EXPECT_EQ(At(160, 314).part, Part::Body);
}

TEST_F(AgendaHitsTest, At_Midnight_IsNoEdge)
{
    EXPECT_EQ(At(60, 1401).part, Part::Start);
    EXPECT_EQ(At(60, 1439).part, Part::Body);
    EXPECT_EQ(At(160, 1).part, Part::Body);
    EXPECT_EQ(At(160, 58).part, Part::End);
}

TEST_F(AgendaHitsTest, At_NearAStripe_IsTheStripe)
{
    EXPECT_EQ(At(60, 698).part, Part::Body);
    EXPECT_EQ(At(60, 698).index, 2U);
    EXPECT_EQ(At(60, 704.5).index, 3U);
    EXPECT_NE(At(60, 696).part, Part::Body);
    EXPECT_EQ(At(160, 331).part, Part::Body);
}

TEST_F(AgendaHitsTest, At_LabelOfStripes_IsTheirRun)
{
    const auto hit = At(100, 704);
    EXPECT_EQ(hit.part, Part::Label);
    EXPECT_EQ(hit.index, 0U);
}

TEST_F(AgendaHitsTest, At_Gap_IsTakenWhole)
{
    const auto hit = At(60, 670);
    EXPECT_EQ(hit.part, Part::Gap);
    EXPECT_EQ(hit.span, (TimeSpan { Moment(0, 640), Moment(0, 700) }));
}

TEST_F(AgendaHitsTest, At_FreeTime_IsTheHalfHour)
{
    const auto hit = At(60, 400);
    EXPECT_EQ(hit.part, Part::Free);
    EXPECT_EQ(hit.span, (TimeSpan { Moment(0, 390), Moment(0, 420) }));
}

TEST_F(AgendaHitsTest, At_FreeTimeBesideActivities_IsWhatIsLeft)
{
    EXPECT_EQ(At(160, 320).span, (TimeSpan { Moment(1, 315), Moment(1, 330) }));
    EXPECT_EQ(At(60, 1395).span, (TimeSpan { Moment(0, 1380), Moment(0, 1400) }));
    EXPECT_EQ(At(160, 70).span, (TimeSpan { Moment(1, 60), Moment(1, 90) }));
}

TEST_F(AgendaHitsTest, At_BesideTheDays_IsNothing)
{
    for (const auto& [x, y] : { std::pair(49.0, 570.0), { 250.0, 570.0 }, { 60.0, -1.0 }, { 60.0, 1440.0 } }) {
        EXPECT_EQ(At(x, y).part, Part::Nothing);
    }
}

TEST_F(AgendaHitsTest, ActivitiesIn_Box_AreThoseItMeetsOnce)
{
    EXPECT_THAT(mHits.ActivitiesIn({ 60, 560, 10, 10 }), ElementsAre(0));
    EXPECT_THAT(mHits.ActivitiesIn({ 60, 560, 60, 10 }), ElementsAre(0, 1));
    EXPECT_THAT(mHits.ActivitiesIn({ 0, 0, 300, 1440 }), ElementsAre(0, 1, 2, 3, 4, 5, 6));
    EXPECT_THAT(mHits.ActivitiesIn({ 60, 640, 60, 60 }), IsEmpty());
    EXPECT_THAT(mHits.ActivitiesIn({ 100, 699, 20, 20 }), IsEmpty()) << "beside the stripes";
}

TEST(AgendaHitsOfManyTest, At_CoveredLanes_IsTheUppermost)
{
    const std::vector<Activity> activities(50, ActivityOn(9, 540, 600, "A"));
    const AgendaLayout layout(activities, OctoberDays(9, 9));
    const AgendaGeometry geometry(TimeScale(1), 1, 0, 107);
    const std::vector<ShortRun> runs;
    const std::vector<Gap> gaps;
    const AgendaHits hits({ layout, geometry, runs, gaps, OctoberDays(9, 9).first, 14 });
    EXPECT_EQ(hits.At(100, 570).index, 49U);
    EXPECT_EQ(hits.At(4, 570).index, 0U);
}

}
