#include "sources/SourceTest.h"
#include "support/ClockifyReport.h"

namespace tempodial {

namespace {

using testing::HasSubstr;

}

class ColumnFormsTest : public SourceTest
{
};

TEST_F(ColumnFormsTest, Clockify_EachFormOrderAndClock_GivesTheSameEntries)
{
    ASSERT_EQ(ClockifyForms().size(), 7U);
    for (const auto& form : ClockifyForms()) {
        for (const bool isMonthFirst : { false, true }) {
            for (const bool hasTwelveHours : { false, true }) {
                const auto text = ClockifyReport(form, isMonthFirst, hasTwelveHours).Text();
                const auto data = Read("clockify", text);
                EXPECT_EQ(Told(data),
                    (std::vector<std::string> { "20060902 09:00 20060902 10:30 Clockify|call|Riverside",
                        "20060913 13:05 20060913 13:36 Clockify|plan|Riverside",
                        "20060914 23:30 20060915 00:20 Clockify|night|Atlas" }))
                    << text;
                EXPECT_TRUE(data.skipped.Counts().empty()) << text;
            }
        }
    }
}

TEST_F(ColumnFormsTest, Clockify_OnlyTheEndTellsTheOrder_IsEnough)
{
    const std::string head = "Start Date,Start Time,End Date,End Time\n";
    EXPECT_EQ(Told(Read("clockify", head + "12/11/2026,23:30,13/11/2026,00:30\n")),
        (std::vector<std::string> { "20261112 23:30 20261113 00:30 Clockify||" }));
    EXPECT_EQ(Told(Read("clockify", head + "11/12/2026,23:30,11/13/2026,00:30\n")),
        (std::vector<std::string> { "20261112 23:30 20261113 00:30 Clockify||" }));
}

TEST_F(ColumnFormsTest, Clockify_MonthThirteen_IsUnreadableWhereTheOrderIsGiven)
{
    const std::string rows = "Start Date,Start Time,End Date,End Time\n13/02/2026,09:00,13/02/2026,10:00\n"
                             "02/13/2026,09:00,02/13/2026,10:00\n";
    EXPECT_THAT(Refusal("clockify", rows), HasSubstr("--dates mdy or --dates dmy"));
    for (const auto order : { DateOrder::MonthFirst, DateOrder::DayFirst }) {
        mDates = order;
        const auto data = Read("clockify", rows);
        EXPECT_EQ(Told(data), (std::vector<std::string> { "20260213 09:00 20260213 10:00 Clockify||" }));
        EXPECT_EQ(data.skipped.Count(Skipped::Unreadable), 1);
    }
}

}
