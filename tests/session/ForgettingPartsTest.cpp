#include "session/DataFiles.h"
#include "session/SlotTexts.h"
#include "session/TextSweep.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace tempodial {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(TextSweepTest, Finds_AnyCaseAndForm_IsFound)
{
    TextSweep sweep;
    EXPECT_FALSE(sweep.Finds("anything"));
    for (const auto* text : { "Secret", "R&D", "x", "", "secret" }) {
        sweep.Add(text);
    }
    EXPECT_THAT(sweep.Texts(), UnorderedElementsAre("secret", "r&d", "x"));
    EXPECT_TRUE(sweep.Finds("top SECRET!"));
    EXPECT_TRUE(sweep.Finds("secret"));
    EXPECT_TRUE(sweep.Finds("in R&amp;d"));
    EXPECT_TRUE(sweep.Finds("in R&#38;D"));
    EXPECT_TRUE(sweep.Finds("boX"));
    EXPECT_FALSE(sweep.Finds("secre"));
    EXPECT_FALSE(sweep.Finds("& amp;"));
    EXPECT_FALSE(sweep.Finds(""));
}

TEST(SlotTextsTest, Of_Line_TellsTimesProjectAndTexts)
{
    const auto slot = SlotTexts::Of("<slot><StartTime>30</StartTime><EndTime>60</EndTime><AppName>Word</AppName>"
                                    "<WindowText>a &lt;b&gt; &#x41;&unknown;</WindowText><Project>P&amp;Q</Project>"
                                    "<URL>http://x</URL></slot>");
    EXPECT_EQ(slot.start, 30);
    EXPECT_EQ(slot.end, 60);
    EXPECT_EQ(slot.project, "P&Q");
    EXPECT_THAT(slot.texts, ElementsAre("a <b> A&unknown;", "http://x"));
}

TEST(SlotTextsTest, Of_AnyText_GivesWhatCanBeMadeOut)
{
    EXPECT_EQ(SlotTexts::Of("<slot><EndTime>60</EndTime>").start, 60);
    EXPECT_THAT(SlotTexts::Of("").texts, IsEmpty());
    EXPECT_THAT(SlotTexts::Of("<<<>").texts, testing::Not(testing::Contains("")));
    EXPECT_THAT(SlotTexts::Of("no slot").texts, ElementsAre("no slot"));
    EXPECT_TRUE(SlotTexts::Holds("<WindowText>A &amp; B", "a & b"));
    EXPECT_FALSE(SlotTexts::Holds("<WindowText>A &amp; B", "a &b"));
}

TEST(DataFileTest, In_Names_TellDaysAndFinishedOnes)
{
    const TempFolder folder { TempFolder::InMemory() };
    std::filesystem::create_directory(folder.Path("kept"));
    for (const auto* name : { "tracker_granules20061010.out", "tracker_granules(done)20061009.out", "other.csv",
             "kept/tracker_granules20060101.out", "kept/tracker_granules20060101.out.2" }) {
        folder.Write(name, "");
    }
    std::vector<std::string> seen;
    for (const auto& file : DataFile::In(folder.Path())) {
        seen.push_back(file.name + " " + file.dayKey + (file.isFinished ? " finished" : ""));
    }
    EXPECT_THAT(seen,
        ElementsAre("other.csv ", "tracker_granules(done)20061009.out 20061009 finished",
            "tracker_granules20061010.out 20061010", "tracker_granules20060101.out 20060101",
            "tracker_granules20060101.out.2 20060101"));
    EXPECT_THAT(DataFile::In(folder.Path("none")), IsEmpty());
}

TEST(DataFileTest, TakeOut_Lines_LeavesTheOthersByteForByte)
{
    const TempFolder folder { TempFolder::InMemory() };
    const auto rest = [&](const std::string& content, const std::string& dayKey, bool mayGrow) {
        const DataFile file { "a.out", NativePath::Exactly(folder.Write("a.out", content)), dayKey, false };
        file.TakeOut([](std::size_t number, const std::string& line) { return number > 0 && line == "x"; }, mayGrow);
        return folder.Has("a.out") ? folder.Read("a.out") : "none";
    };
    EXPECT_EQ(rest("h\r\nx\r\n\xe4\nx\n\nend", "20061010", false), "h\r\n\xe4\n\nend");
    EXPECT_EQ(rest("x\r\nx", "20061010", true), "x\r\n");
    EXPECT_EQ(rest("x\r\nx", "20061010", false), "none") << "nothing but the heading is left";
    EXPECT_EQ(rest("x\r\nx", "", false), "x\r\n");
    EXPECT_EQ(rest("h\ny\n", "20061010", false), "h\ny\n");
    EXPECT_EQ(rest("", "20061010", false), "");
}

}
