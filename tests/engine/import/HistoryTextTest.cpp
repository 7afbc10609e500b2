#include "engine/import/HistoryText.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(HistoryTextTest, Entry_IsDayKeyAndFiveDigits)
{
    EXPECT_EQ(HistoryText::Entry("20061010", 4300), "20061010_04300");
    EXPECT_EQ(HistoryText::Entry("20061010", 0), "20061010_00000");
    EXPECT_EQ(HistoryText::Entry("20061010", 86400), "20061010_86400");
}

TEST(HistoryTextTest, Find_WithAndWithoutBar_IsThePositionOfTheDay)
{
    EXPECT_EQ(HistoryText("20061010_04300").Find("20061010"), 1);
    EXPECT_EQ(HistoryText("|20061010_04300").Find("20061010"), 2);
    EXPECT_EQ(HistoryText("|20061010_04300").Find("20061009"), 0);
    EXPECT_EQ(HistoryText("").Find("20061010"), 0);
}

TEST(HistoryTextTest, Count_ReadsTheEntryAtThePosition)
{
    EXPECT_EQ(HistoryText("20061010_04300").Count(1), 4300);
    EXPECT_EQ(HistoryText("|20061008_01000|20061009_02000").Count(2), 1000);
    EXPECT_EQ(HistoryText("|20061008_01000|20061009_02000").Count(17), 2000);
}

TEST(HistoryTextTest, Count_EntryThatCannotBeRead_Fails)
{
    EXPECT_EQ(FailureNumber([] { HistoryText("20061010_x").Count(1); }), 13);
    EXPECT_EQ(FailureNumber([] { HistoryText("20061010_").Count(1); }), 13);
    EXPECT_EQ(FailureNumber([] { HistoryText("20061010").Count(1); }), 9);
}

TEST(HistoryTextTest, Cut_KeepsFirstCharacterAndTakesOneOfWhatFollows)
{
    struct Row
    {
        const char* text;
        const char* day;
        const char* rest;
    };
    const Row rows[] = {
        { "|20061008_01000|20061009_02000", "20061008", "|20061009_02000" },
        { "20061009_02000|20061008_01000", "20061009", "20061008_01000" },
        { "20061010_04300|20061009_02000|20061008_01000", "20061009", "20061010_04300|20061008_01000" },
        { "|20061009_02000|20061008_01000|20061007_00500", "20061009", "|20061008_01000|20061007_00500" },
        { "|20061009_02000|20061008_01000|20061007_00500", "20061008", "|20061009_02000|20061007_00500" },
        { "20061009_02000\r\n", "20061009", "2" },
    };
    for (const auto& row : rows) {
        HistoryText history(row.text);
        history.Cut(history.Find(row.day));
        EXPECT_EQ(history.Text(), row.rest) << row.text;
    }
}

TEST(HistoryTextTest, Cut_LastEntry_FailsAndChangesNothing)
{
    for (const auto* const text : { "|20061008_01000|20061009_02000", "20061009_02000" }) {
        HistoryText history(text);
        EXPECT_EQ(FailureNumber([&] { history.Cut(history.Find("20061009")); }), 5);
        EXPECT_EQ(history.Text(), text);
    }
}

TEST(HistoryTextTest, SetCount_OverwritesTheFiveDigits)
{
    HistoryText history("|20061008_01000|20061009_02000");
    history.SetCount(17, 4300);
    EXPECT_EQ(history.Text(), "|20061008_01000|20061009_04300");
    history.SetCount(2, 4300);
    EXPECT_EQ(history.Text(), "|20061008_04300|20061009_04300");
}

TEST(HistoryTextTest, SetCount_EntryIsCutShort_NeverGrows)
{
    HistoryText history("20061010_43");
    history.SetCount(1, 4300);
    EXPECT_EQ(history.Text(), "20061010_04");
}

TEST(HistoryTextTest, SetCount_NothingBehindTheDay_Fails)
{
    HistoryText history("20061010");
    EXPECT_EQ(FailureNumber([&] { history.SetCount(1, 4300); }), 5);
    EXPECT_EQ(history.Text(), "20061010");
}

TEST(HistoryTextTest, Tail_IsCountedFromTheEnd)
{
    const HistoryText history("|20061008_01000|20061009_02000");
    EXPECT_EQ(history.Tail(17), "061008_01000|20061009_02000");
    EXPECT_EQ(history.Tail(2), "061009_02000");
}

TEST(HistoryTextTest, Append_PutsABarInFront)
{
    HistoryText history;
    history.Append("20061010", 4300);
    history.Append("20061009", 500);
    EXPECT_EQ(history.Text(), "|20061010_04300|20061009_00500");
}

}
