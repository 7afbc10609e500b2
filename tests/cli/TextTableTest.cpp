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

TEST(TextTableTest, Add_CellThatTurnsDirection_LeavesTheOthers)
{
    using enum TextTable::Side;
    TextTable table({ Left, Right, Left });
    table.Add({ "שלום", "5 min", "a\u202Eb" });
    table.Add({ "plan", "15 min", "c" });
    EXPECT_EQ(table.Text(), "\u2068שלום\u2069   5 min  \u2068ab\u2069\nplan  15 min  c\n");
}

TEST(TextTableTest, Add_CellWithLineEndAndControlCharacter_StaysOneHarmlessLine)
{
    TextTable table({ TextTable::Side::Left });
    table.Add({ "a\r\nb\x1b" });
    EXPECT_EQ(table.Text(), "a b␛\n");
}

}
