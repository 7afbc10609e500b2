#include "cli/ProgressLine.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tempodial {

TEST(ProgressLineTest, Draw_HalfDone_ShowsHalfABar)
{
    std::ostringstream stream;
    ProgressLine line(stream, 40);
    line.Draw("loading", 25, 50);
    EXPECT_EQ(stream.str(), "\rloading          [##########----------]");
}

TEST(ProgressLineTest, Draw_TheSameAgain_WritesNothing)
{
    std::ostringstream stream;
    ProgressLine line(stream, 40);
    line.Draw("loading", 1, 50);
    const auto once = stream.str();
    line.Draw("loading", 1, 50);
    EXPECT_EQ(stream.str(), once);
}

TEST(ProgressLineTest, Draw_ValuesOutOfRange_KeepTheBar)
{
    for (const auto& [value, limit, bar] : { std::tuple(99, 50, "[####################]"),
             std::tuple(-1, 50, "[--------------------]"), std::tuple(1, 0, "[--------------------]") }) {
        std::ostringstream stream;
        ProgressLine line(stream, 30);
        line.Draw("", value, limit);
        EXPECT_TRUE(stream.str().ends_with(bar)) << stream.str();
    }
}

TEST(ProgressLineTest, Draw_NarrowTerminal_CutsTheText)
{
    std::ostringstream stream;
    ProgressLine line(stream, 30);
    line.Draw("a long text that has no room", 0, 50);
    EXPECT_EQ(stream.str(), "\ra long [--------------------]");
}

TEST(ProgressLineTest, Clear_Drawn_TakesItOffOnce)
{
    std::ostringstream stream;
    {
        ProgressLine line(stream, 30);
        line.Draw("a", 0, 50);
        stream.str("");
        line.Clear();
        EXPECT_EQ(stream.str(), "\r" + std::string(29, ' ') + "\r");
        stream.str("");
    }
    EXPECT_EQ(stream.str(), "");
}

}
