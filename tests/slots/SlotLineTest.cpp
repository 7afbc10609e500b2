#include "slots/SlotLine.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(SlotLineTest, Text_TimesAlone_IsADocumentOfThem)
{
    EXPECT_EQ(SlotLine(32400, 32700).Text(), "<slot><StartTime>32400</StartTime><EndTime>32700</EndTime></slot>");
}

TEST(SlotLineTest, Text_Nodes_StandInTheirOrder)
{
    EXPECT_EQ(SlotLine(0, 300).Node("AppName", "Atlas").Application(8).Node("Project", "").Text(),
        "<slot><StartTime>0</StartTime><EndTime>300</EndTime><AppName>Atlas</AppName><AppType>8</AppType>"
        "<Project></Project></slot>");
}

TEST(SlotLineTest, Text_Marks_AreNodesThatReadOne)
{
    EXPECT_EQ(SlotLine(0, 300).Continuation().Text(),
        "<slot><StartTime>0</StartTime><EndTime>300</EndTime><Continuation>1</Continuation></slot>");
    EXPECT_EQ(SlotLine(0, 300).Detail().Text(),
        "<slot><StartTime>0</StartTime><EndTime>300</EndTime><Detail>1</Detail></slot>");
}

TEST(SlotLineTest, Text_AgainAfterMoreNodes_HoldsThemToo)
{
    SlotLine line(0, 300);
    const auto before = line.Text();
    line.Node("Project", "Plan");
    EXPECT_EQ(line.Text().size(), before.size() + std::string("<Project>Plan</Project>").size());
}

TEST(SlotLineTest, Node_MarksOfXml_AreEscaped)
{
    EXPECT_EQ(SlotLine(0, 1).Node("WindowText", R"(a<b>&amp; "c" 'd')").Text(),
        "<slot><StartTime>0</StartTime><EndTime>1</EndTime>"
        R"(<WindowText>a&lt;b&gt;&amp;amp; "c" 'd'</WindowText></slot>)");
}

TEST(SlotLineTest, Node_SeveralLines_StayOneLine)
{
    EXPECT_EQ(SlotLine(0, 1).Node("WindowText", "a\r\nb\tc").Text(),
        "<slot><StartTime>0</StartTime><EndTime>1</EndTime><WindowText>a&#13;&#10;b&#9;c</WindowText></slot>");
}

TEST(SlotLineTest, Node_OtherLetters_AreNumbers)
{
    EXPECT_EQ(SlotLine(0, 1).Node("WindowText", "B\u00fcro \U0001F600").Text(),
        "<slot><StartTime>0</StartTime><EndTime>1</EndTime><WindowText>B&#252;ro &#128512;</WindowText></slot>");
}

TEST(SlotLineTest, Node_BytesThatAreNoCharacter_StayAsTheyAre)
{
    EXPECT_EQ(SlotLine(0, 1).Node("WindowText", "B\xfcro").Text(),
        "<slot><StartTime>0</StartTime><EndTime>1</EndTime><WindowText>B\xfcro</WindowText></slot>");
}

}
