#include "review/PeriodColumns.h"

#include <gmock/gmock.h>

#include <string>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The columns as "first-last" in day keys, of weeks that begin on Mondays.
std::vector<std::string> Columns(Date first, Date last, ColumnSize size)
{
    std::vector<std::string> columns;
    for (const auto& column : ColumnsOf({ first, last }, size, [] { return 2; })) {
        columns.push_back(column.first.DayKey() + "-" + column.last.DayKey());
    }
    return columns;
}

}

TEST(PeriodColumnsTest, ColumnsOf_EachSize_IsCutAtTheEnds)
{
    const auto first = Date::FromYearMonthDay(2006, 9, 29);
    const auto last = Date::FromYearMonthDay(2006, 10, 3);
    EXPECT_THAT(Columns(first, last, ColumnSize::Day),
        ElementsAre(
            "20060929-20060929", "20060930-20060930", "20061001-20061001", "20061002-20061002", "20061003-20061003"));
    EXPECT_THAT(Columns(first, last, ColumnSize::Week), ElementsAre("20060929-20061001", "20061002-20061003"));
    EXPECT_THAT(Columns(first, last, ColumnSize::Month), ElementsAre("20060929-20060930", "20061001-20061003"));
    EXPECT_THAT(Columns(first, last, ColumnSize::None), IsEmpty());
    EXPECT_THAT(Columns(first, first, ColumnSize::Month), ElementsAre("20060929-20060929"));
}

TEST(PeriodColumnsTest, ColumnsOf_LastMonthThereIs_Ends)
{
    const auto last = Date::FromYearMonthDay(9999, 12, 31);
    EXPECT_THAT(Columns(last.AddDays(-1), last, ColumnSize::Month), ElementsAre("99991230-99991231"));
}

}
