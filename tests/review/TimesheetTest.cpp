#include "review/Timesheet.h"

#include "review/Activities.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Rounding = TimesheetTerms::Rounding;
using What = TimesheetTerms::What;

Timesheet SheetOf(const std::vector<Activity>& activities, const TimesheetTerms& terms)
{
    return Timesheet::Of("Plan", OctoberDays(1, 31), activities, terms);
}

/// Two days of 8 and 3 minutes, and of 20.
std::vector<Activity> TwoDays()
{
    return { ActivityOn(9, 540, 548, "Plan"), ActivityOn(9, 600, 603, "Plan"), ActivityOn(11, 540, 560, "Plan") };
}

std::vector<std::int64_t> Billed(const Timesheet& sheet)
{
    std::vector<std::int64_t> minutes;
    for (const auto& day : sheet.days) {
        minutes.push_back(day.billedMinutes);
    }
    minutes.push_back(sheet.billedMinutes);
    return minutes;
}

}

TEST(TimesheetTest, Of_Days_AreThoseWithTime)
{
    auto activities = TwoDays();
    activities.insert(activities.begin() + 2, ActivityOn(10, 540, 540, "Plan"));
    const auto sheet = SheetOf(activities, {});
    ASSERT_EQ(sheet.days.size(), 2U);
    EXPECT_EQ(sheet.days[0].date, Date::FromYearMonthDay(2006, 10, 9));
    EXPECT_EQ(sheet.days[1].date, Date::FromYearMonthDay(2006, 10, 11));
    EXPECT_EQ(sheet.days[0].minutes, 11);
    EXPECT_EQ(sheet.minutes, 31);
    EXPECT_THAT(Billed(sheet), ElementsAre(11, 20, 31)) << "without a step billed is measured";
    EXPECT_EQ(sheet.amount, std::nullopt);
    EXPECT_THAT(SheetOf({}, {}).days, IsEmpty());
}

TEST(TimesheetTest, Of_Rounding_GoesUpWhereItIsAsked)
{
    EXPECT_THAT(Billed(SheetOf(TwoDays(), { .step = 15, .rounding = Rounding::Day })), ElementsAre(15, 30, 45));
    EXPECT_THAT(Billed(SheetOf(TwoDays(), { .step = 15, .rounding = Rounding::Entry })), ElementsAre(30, 30, 60));
    EXPECT_THAT(Billed(SheetOf(TwoDays(), { .step = 15, .rounding = Rounding::Total })), ElementsAre(11, 20, 45));
    EXPECT_THAT(Billed(SheetOf({ ActivityOn(9, 0, 30, "Plan") }, { .step = 15, .rounding = Rounding::Entry })),
        ElementsAre(30, 30))
        << "what is whole stays";
    EXPECT_EQ(SheetOf(TwoDays(), { .step = 15 }).minutes, 31) << "measured time stays";
}

TEST(TimesheetTest, Of_Amount_IsThatOfTheBilledSum)
{
    const auto sheet = SheetOf(TwoDays(), { .step = 15, .rate = HourlyRate::Read("100") });
    EXPECT_EQ(sheet.amount, Money { 7500 });
}

TEST(TimesheetTest, Of_What_IsByTimeAndThenByName)
{
    const std::vector<Activity> activities { ActivityOn(9, 0, 5, "Plan", "Word", "b"),
        ActivityOn(9, 5, 10, "Plan", "Excel", "a"), ActivityOn(9, 10, 14, "Plan", "Word", "c"),
        ActivityOn(9, 14, 16, "Plan", "Word", "c"), ActivityOn(9, 16, 60, "Plan", "", ""),
        ActivityOn(10, 0, 5, "Plan", "Word", "d") };
    const auto what = [&activities](What asked) {
        std::vector<std::vector<std::string>> texts;
        for (const auto& day : SheetOf(activities, { .what = asked }).days) {
            texts.push_back(day.what);
        }
        return texts;
    };
    EXPECT_THAT(what(What::Descriptions), ElementsAre(ElementsAre("c", "a", "b"), ElementsAre("d")));
    EXPECT_THAT(what(What::Applications), ElementsAre(ElementsAre("Word", "Excel"), ElementsAre("Word")));
    EXPECT_THAT(what(What::None), ElementsAre(IsEmpty(), IsEmpty()));
}

}
