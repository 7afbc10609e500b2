#include "cli/TextTable.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(TextTableTest, Text_NoRows_IsEmpty)
{
    EXPECT_EQ(TextTable({ TextTable::Side::Left }).Text(), "");
}

TEST(TextTableTest, Text_RowsOfDifferentWidths_AreAligned)
{
    using enum TextTable::Side;
    TextTable table({ Left, Right, Left });
    table.Add({ "a", "5 min", "x" });
    table.Add({ "売上", "15 min", "" });
    EXPECT_EQ(table.Text(), "a      5 min  x\n売上  15 min\n");
}

TEST(TextTableTest, Add_CellWithLineEndAndControlCharacter_StaysOneHarmlessLine)
{
    TextTable table({ TextTable::Side::Left });
    table.Add({ "a\r\nb\x1b" });
    EXPECT_EQ(table.Text(), "a b␛\n");
}

}
