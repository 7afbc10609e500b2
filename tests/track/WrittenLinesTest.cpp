#include "track/WrittenLines.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

constexpr auto Heading = "Tempodial tracker 1, 2026-11-20, +01:00\r\n";

std::string LineAt(int end, const std::string& more = "")
{
    return "<slot><StartTime>" + std::to_string(end - 300) + "</StartTime><EndTime>" + std::to_string(end)
        + "</EndTime>" + more + "</slot>\r\n";
}

const auto Told = std::string("<Detail>1</Detail>");

TEST(WrittenLinesTest, Of_Lines_AreCountedUpToTheLastWholeOne)
{
    const auto written
        = WrittenLines::Of(Heading + LineAt(300) + LineAt(300, Told) + LineAt(600) + "<slot><EndTime>900</EndT");
    EXPECT_EQ(written.end, 600);
    EXPECT_EQ(written.slots, 2);
}

TEST(WrittenLinesTest, Of_NothingOrOnlyAHeading_HasNoEnd)
{
    EXPECT_EQ(WrittenLines::Of("").end, 0);
    EXPECT_EQ(WrittenLines::Of(Heading).end, 0);
    EXPECT_EQ(WrittenLines::Of(Heading + LineAt(300) + "nonsense\r\n").end, 300);
}

TEST(WrittenLinesTest, LinesBehind_WhatEndsBehindASecond_StaysWithWhatIsToldOfIt)
{
    EXPECT_EQ(LinesBehind(LineAt(300) + LineAt(600, Told) + LineAt(600) + LineAt(900, Told) + LineAt(900), 600),
        LineAt(900, Told) + LineAt(900));
    EXPECT_EQ(LinesBehind("", 0), "");
}

TEST(WrittenLinesTest, EraseLines_BehindAMoment_TakesWhatIsToldOfThemToo)
{
    auto content = Heading + LineAt(300) + LineAt(300, Told) + LineAt(600) + LineAt(600, Told) + LineAt(900);
    const auto erased = EraseLines(content, 600, 0);
    EXPECT_EQ(content, Heading + LineAt(300) + LineAt(300, Told) + LineAt(600));
    EXPECT_EQ(erased.forgotten, 2);
    EXPECT_EQ(erased.kept, 0);
}

TEST(WrittenLinesTest, EraseLines_LinesThatImportsHaveTaken_Stay)
{
    auto content = Heading + LineAt(300) + LineAt(600) + LineAt(900);
    const auto erased = EraseLines(content, 0, 2);
    EXPECT_EQ(content, Heading + LineAt(300) + LineAt(600));
    EXPECT_EQ(erased.forgotten, 1);
    EXPECT_EQ(erased.kept, 2);
}

TEST(WrittenLinesTest, EraseLines_LineThatWasCutOff_IsGoneToo)
{
    auto content = Heading + LineAt(300) + "<slot><Start";
    EXPECT_EQ(EraseLines(content, 300, 0).forgotten, 0);
    EXPECT_EQ(content, Heading + LineAt(300));
}

}

}
