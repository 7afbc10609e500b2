#include "cli/ShownText.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(ShownTextTest, Text_NoPieces_IsEmpty)
{
    EXPECT_TRUE(ShownText().IsEmpty());
    EXPECT_TRUE(ShownText("").IsEmpty());
    EXPECT_EQ(ShownText().Text(), "");
}

TEST(ShownTextTest, Text_Pieces_StandInTheirOrder)
{
    TextTable table({ TextTable::Side::Left });
    table.AddHeading({ "column" });
    ShownText text("first\n");
    text += "second\x1b\n";
    text.AddHeading("a\nheading");
    text += table;
    text += "last\n";
    EXPECT_FALSE(text.IsEmpty());
    EXPECT_EQ(text.Text(), "first\nsecond␛\na heading\ncolumn\nlast\n");
    EXPECT_EQ(text.Text({ .width = 4, .hasColors = true }),
        "first\nsecond␛\n\x1b[1ma heading\x1b[0m\n\x1b[1mcol…\x1b[0m\nlast\n");
}

}
