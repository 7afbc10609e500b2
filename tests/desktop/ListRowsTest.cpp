#include "desktop/ListRows.h"

#include "desktop/FieldNames.h"
#include "host/system/IcuLocaleFormats.h"
#include "review/Activities.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

ListRow Heading(std::size_t group)
{
    return { group, std::nullopt };
}

class ListRowsTest : public testing::Test
{
protected:
    ListRows Rows(std::set<std::string> folded = {}) const
    {
        return { mActivities, mView, mValues, std::move(folded) };
    }

    std::vector<Activity> mActivities { ActivityOn(9, 500, 510, "beta"), ActivityOn(9, 600, 660, ""),
        ActivityOn(10, 500, 530, "Alpha"), ActivityOn(10, 600, 605, "Beta"), ActivityOn(10, 600, 607, "ALPHA") };
    TableViewLayout mView { {}, { { std::string(ProjectField), false } }, { { std::string(StartField), true } } };
    FieldValues mValues { MakeRef<IcuLocaleFormats>("en_GB"),
        [](const Activity& activity, const std::string&) { return Variant(activity.duration); }, Titles::Shown };
};

}

TEST_F(ListRowsTest, Rows_GroupedView_HaveHeadingsWithSums)
{
    const auto rows = Rows();
    ASSERT_EQ(rows.Groups().size(), 3U);
    EXPECT_EQ(rows.Groups()[0].minutes, 37);
    EXPECT_THAT(rows.Groups()[0].activities, ElementsAre(4, 2));
    EXPECT_EQ(rows.Groups()[1].key, "beta");
    EXPECT_EQ(rows.Groups()[2].name, "No Project");
    EXPECT_THAT(rows.Rows(),
        ElementsAre(Heading(0), ListRow { 0, 4 }, ListRow { 0, 2 }, Heading(1), ListRow { 1, 3 }, ListRow { 1, 0 },
            Heading(2), ListRow { 2, 1 }));
}

TEST_F(ListRowsTest, SetFolded_Group_HidesItsActivitiesUntilItIsShownAgain)
{
    auto rows = Rows({ "beta", "gone" });
    EXPECT_THAT(rows.Rows(),
        ElementsAre(Heading(0), ListRow { 0, 4 }, ListRow { 0, 2 }, Heading(1), Heading(2), ListRow { 2, 1 }));
    rows.SetFolded(1, false);
    rows.SetFolded(0, true);
    EXPECT_THAT(rows.Rows(),
        ElementsAre(Heading(0), Heading(1), ListRow { 1, 3 }, ListRow { 1, 0 }, Heading(2), ListRow { 2, 1 }));
    EXPECT_THAT(rows.Folded(), ElementsAre("alpha", "gone"));
}

TEST_F(ListRowsTest, Rows_GroupsDescending_StandTheOtherWayRound)
{
    mView.groups[0].isDescending = true;
    EXPECT_EQ(Rows().Groups()[0].name, "No Project");
}

TEST_F(ListRowsTest, Rows_NoGroups_HaveNoHeadings)
{
    mView.groups.clear();
    const auto rows = Rows();
    EXPECT_THAT(rows.Rows(),
        ElementsAre(ListRow { 0, 3 }, ListRow { 0, 4 }, ListRow { 0, 2 }, ListRow { 0, 1 }, ListRow { 0, 0 }));
}

TEST_F(ListRowsTest, Rows_OrderByAPropertyOfItems_ReadsIt)
{
    mView.groups.clear();
    mView.orders = { { "Something", false } };
    EXPECT_THAT(Rows().Rows(),
        ElementsAre(ListRow { 0, 3 }, ListRow { 0, 4 }, ListRow { 0, 0 }, ListRow { 0, 2 }, ListRow { 0, 1 }));
}

TEST_F(ListRowsTest, Rows_FurtherGroups_OrderWithinTheFirst)
{
    mView.groups.push_back({ std::string(DurationField), true });
    EXPECT_THAT(Rows().Groups()[0].activities, ElementsAre(2, 4));
}

TEST_F(ListRowsTest, Rows_NoActivities_AreNone)
{
    mActivities.clear();
    EXPECT_THAT(Rows().Rows(), IsEmpty());
    EXPECT_THAT(Rows().Groups(), IsEmpty());
}

}
