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

TEST(TextTableTest, Text_NoRoom_CutsTheWidestTexts)
{
    using enum TextTable::Side;
    TextTable table({ Left, Right, Left });
    table.Add({ "a name of a project", "15 min", "売上売上売上売上売上売上売上売上売上売上" });
    table.Add({ "b", "5 min", "c" });
    EXPECT_EQ(table.Text({ .width = 100 }), table.Text());
    EXPECT_EQ(table.Text({ .width = 50 }),
        "a name of a project  15 min  売上売上売上売上売上…\n"
        "b                     5 min  c\n");
    EXPECT_EQ(table.Text({ .width = 40 }),
        "a name of a pr…  15 min  売上売上売上売…\n"
        "b                 5 min  c\n");
    EXPECT_EQ(table.Text({ .width = 20 }),
        "a name of a… …\n"
        "b …\n");
}

TEST(TextTableTest, Text_VeryNarrow_CutsTheLines)
{
    using enum TextTable::Side;
    TextTable table({ Left, Right, Right });
    table.Add({ "abc", "1:00", "12:00" });
    EXPECT_EQ(table.Text({ .width = 16 }), "abc  1:00  12:00\n");
    EXPECT_EQ(table.Text({ .width = 15 }), "abc  1:00 …\n");
    EXPECT_EQ(table.Text({ .width = 11 }), "abc  1:00 …\n");
    EXPECT_EQ(table.Text({ .width = 9 }), "abc …\n");
    EXPECT_EQ(table.Text({ .width = 5 }), "abc …\n");
    EXPECT_EQ(table.Text({ .width = 3 }), "ab…\n");
    EXPECT_EQ(table.Text({ .width = 1 }), "…\n");
}

TEST(TextTableTest, Text_Colors_StandAroundCellsAlone)
{
    using enum TextTable::Side;
    TextTable table({ Left, Right });
    table.AddHeading({ "A", "B" });
    table.AddStyled({ { "name", { "38;5;28" } }, { "5", {} } });
    table.AddStyled({ { "x ", { "2" } }, { "", { "2" } } });
    EXPECT_EQ(table.Text(), "A     B\nname  5\nx\n");
    EXPECT_EQ(table.Text({ .width = 5, .hasColors = true }),
        "\x1b[1mA\x1b[0m …\n\x1b[38;5;28mname\x1b[0m…\n\x1b[2mx\x1b[0m\n");
    EXPECT_EQ(table.Text({ .hasColors = true }),
        "\x1b[1mA\x1b[0m     \x1b[1mB\x1b[0m\n\x1b[38;5;28mname\x1b[0m  5\n\x1b[2mx\x1b[0m\n");
}

TEST(TextTableTest, Add_CellWithLineEndAndControlCharacter_StaysOneHarmlessLine)
{
    TextTable table({ TextTable::Side::Left });
    table.Add({ "a\r\nb\x1b" });
    EXPECT_EQ(table.Text(), "a b␛\n");
}

}
