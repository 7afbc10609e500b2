#include "review/Totals.h"

#include "review/Activities.h"
#include "review/PeriodColumns.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<Period> Days(int first, int last)
{
    return ColumnsOf(OctoberDays(first, last), ColumnSize::Day, nullptr);
}

std::vector<std::string> RowNames(const Totals& totals)
{
    std::vector<std::string> names;
    for (const auto& row : totals.rows) {
        names.push_back(row.name);
    }
    return names;
}

}

TEST(TotalsTest, Of_Projects_AreSummedByColumn)
{
    const auto totals = Totals::Of(Each({ ActivityOn(9, 600, 610, "A"), ActivityOn(9, 620, 625, "B"),
                                       ActivityOn(10, 600, 630, "B"), ActivityOn(10, 640, 641, "A") }),
        RowKind::Project, Days(9, 11));
    ASSERT_THAT(RowNames(totals), ElementsAre("B", "A"));
    EXPECT_THAT(totals.rows[0].minutes, ElementsAre(5, 30, 0));
    EXPECT_EQ(totals.rows[0].total, 35);
    EXPECT_THAT(totals.rows[1].minutes, ElementsAre(10, 1, 0));
    EXPECT_THAT(totals.minutes, ElementsAre(15, 31, 0));
    EXPECT_EQ(totals.total, 46);
}

TEST(TotalsTest, Of_EqualAndNoProject_AreByNameAndLast)
{
    const auto totals
        = Totals::Of(Each({ ActivityOn(9, 0, 100, "No Project"), ActivityOn(9, 100, 200, ""),
                         ActivityOn(9, 200, 205, "C"), ActivityOn(9, 205, 210, "B"), ActivityOn(9, 210, 216, "D") }),
            RowKind::Project, {});
    EXPECT_THAT(RowNames(totals), ElementsAre("D", "B", "C", "No Project"));
    EXPECT_EQ(totals.rows.back().total, 200) << "one without the property has no project either";
}

TEST(TotalsTest, Of_OtherKinds_TakeTheirTextsAsStored)
{
    const std::vector<Activity> activities { ActivityOn(9, 0, 5, "A", "Word", "x"),
        ActivityOn(9, 5, 15, "B", "word", "x"), ActivityOn(9, 15, 45, "A", "No Project", "") };
    EXPECT_THAT(
        RowNames(Totals::Of(Each(activities), RowKind::Application, {})), ElementsAre("No Project", "word", "Word"));
    EXPECT_THAT(RowNames(Totals::Of(Each(activities), RowKind::Description, {})), ElementsAre("", "x"));
}

TEST(TotalsTest, Of_WithoutTime_IsLeftOut)
{
    const auto totals = Totals::Of(Each({ ActivityOn(9, 600, 600, "A") }), RowKind::Project, Days(9, 9));
    EXPECT_THAT(totals.rows, IsEmpty());
    EXPECT_THAT(totals.minutes, ElementsAre(0));
    EXPECT_EQ(totals.total, 0);
}

TEST(TotalsTest, Of_PastMidnight_CountsWholeOnTheDayOfItsStart)
{
    const auto totals = Totals::Of(Each({ ActivityOn(9, 1430, 1500, "A") }), RowKind::Project, Days(9, 10));
    EXPECT_THAT(totals.minutes, ElementsAre(70, 0));
}

TEST(TotalsTest, Of_BesideTheColumns_CountsInTheTotalAlone)
{
    const auto totals
        = Totals::Of(Each({ ActivityOn(8, 0, 1, "A"), ActivityOn(9, 0, 2, "A"), ActivityOn(10, 0, 4, "A") }),
            RowKind::Project, Days(9, 9));
    EXPECT_THAT(totals.minutes, ElementsAre(2));
    EXPECT_EQ(totals.total, 7);
}

}
