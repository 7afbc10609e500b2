#include "slots/SlotWords.h"

#include "slots/SlotStreams.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

PickedSlot Picked(const std::string& program, const std::vector<Glance>& glances)
{
    PickedSlot slot;
    slot.program = program;
    slot.views = Slot(0, glances).views;
    return slot;
}

std::string TextOf(const std::vector<Glance>& glances)
{
    SlotWords words;
    words.Add(Picked("A", glances));
    return words.Current().text;
}

std::string LineOf(const Words& words)
{
    SlotLine line(0, 1);
    words.PutInto(line);
    return line.Text().substr(std::string("<slot><StartTime>0</StartTime><EndTime>1</EndTime>").size());
}

}

TEST(SlotWordsTest, Current_TitleOfHalfTheTime_StandsForAll)
{
    EXPECT_EQ(TextOf({ { "A", "a", 150 }, { "A", "b", 100 }, { "A", "c", 50 }, { "B", "x", 500 } }), "a");
}

TEST(SlotWordsTest, Current_PlaceOfHalfTheTime_ComesNext)
{
    EXPECT_EQ(TextOf({ { "A", "a", 140, "p" }, { "A", "b", 100, "p" }, { "A", "c", 60, "q" } }), "p");
}

TEST(SlotWordsTest, Current_NoHalf_ListsTheThreeLargestPlaces)
{
    EXPECT_EQ(
        TextOf({ { "A", "a", 50 }, { "A", "b", 90 }, { "A", "c", 80 }, { "A", "d", 60 }, { "A", "", 10 } }), "b, c, d");
    EXPECT_EQ(TextOf({ { "A", "", 300 } }), "");
}

TEST(SlotWordsTest, Current_SlotsAdded_LetTheWordsGrow)
{
    SlotWords words;
    words.Add(Picked("A", { { "A", "a", 300 } }));
    EXPECT_EQ(words.Current().text, "a");
    words.Add(Picked("A", { { "A", "b", 300 } }));
    words.Add(Picked("A", { { "A", "b", 100 } }));
    EXPECT_EQ(words.Current().text, "b");
}

TEST(SlotWordsTest, Current_TitleThatComesBackInSmallParts_IsStillTheLargest)
{
    SlotWords words;
    for (int i = 0; i < 100; ++i) {
        words.Add(Picked("A",
            { { "A", "long " + std::to_string(i), 100, "p" + std::to_string(i % 9) }, { "A", "map", 120, "q" },
                { "A", "", 60, "" } }));
    }
    EXPECT_EQ(words.Current().text, "q, p0, p1");
    words.Add(Picked("A", { { "A", "map", 6000, "q" } }));
    EXPECT_EQ(words.Current().text, "map");
}

TEST(SlotWordsTest, Current_TitleWithDocumentAndWithout_HasTheKindOfMostTime)
{
    SlotWords words;
    auto slot = Picked("A", { { "A", "a", 100 } });
    words.Add(slot);
    slot.views[0].view.kind = 5;
    words.Add(slot);
    EXPECT_EQ(words.Current().kind, 0);
    words.Add(slot);
    EXPECT_EQ(words.Current().kind, 5);
}

TEST(SlotWordsTest, Current_NoViews_AreTheSlotsOwn)
{
    SlotWords words;
    auto slot = Picked("A", {});
    slot.text = "a";
    slot.project = "P";
    words.Add(slot);
    EXPECT_EQ(words.Current(), (Words { "A", 0, "a", "P" }));
}

TEST(SlotWordsTest, SecondsIn_CountsTitleAndPlace)
{
    SlotWords words;
    const auto slot
        = Picked("A", { { "A", "a", 140, "p" }, { "A", "b", 100, "p" }, { "A", "c", 60, "q" }, { "B", "p", 9 } });
    words.Add(slot);
    EXPECT_EQ(words.SecondsIn(slot), 240);
}

TEST(SlotWordsTest, PutInto_Kinds_HaveTheirNodes)
{
    EXPECT_EQ(LineOf({ "Atlas", 0, "map", "P" }),
        "<AppType>0</AppType><AppName>Atlas</AppName><WindowText>map</WindowText><Project>P</Project></slot>");
    EXPECT_EQ(LineOf({ "Atlas", 0, "", "" }),
        "<AppType>0</AppType><AppName>Atlas</AppName><WindowText>Atlas</WindowText></slot>");
    EXPECT_EQ(LineOf({ "", 0, "", "" }), "<AppType>0</AppType><AppName>Unknown</AppName></slot>");
    EXPECT_EQ(LineOf({ "", 0, "None", "" }),
        "<AppType>0</AppType><AppName>Unknown</AppName><WindowText>none</WindowText></slot>");
    EXPECT_EQ(LineOf({ "x", 2, "a.docx", "" }), "<AppType>2</AppType><WordDocName>a.docx</WordDocName></slot>");
    EXPECT_EQ(LineOf({ "x", 3, "a.xlsx", "" }), "<AppType>3</AppType><ExcelDocName>a.xlsx</ExcelDocName></slot>");
    EXPECT_EQ(LineOf({ "x", 4, "a.pptx", "" }), "<AppType>4</AppType><PPTDocName>a.pptx</PPTDocName></slot>");
    EXPECT_EQ(LineOf({ "x", 5, "Plan", "" }), "<AppType>5</AppType><OutlookSubject>Plan</OutlookSubject></slot>");
    EXPECT_EQ(LineOf({ "x", 8, "a.txt", "" }), "<AppType>8</AppType><WindowText>a.txt</WindowText></slot>");
}

TEST(SlotDetailsTest, Of_HalfAMinuteOfSomethingElse_IsOneDetail)
{
    SlotDetails details;
    const Words words { "A", 0, "a", "" };
    const auto slot
        = Picked("A", { { "A", "a", 100 }, { "A", "b", 30 }, { "A", "c", 29 }, { "B", "x", 90 }, { "C", "", 40 } });
    EXPECT_EQ(details.Of(slot, words), (std::vector<std::string> { "B: x", "C", "b" }));
    EXPECT_EQ(details.Of(slot, words), (std::vector<std::string> {}));
}

TEST(SlotDetailsTest, Of_ManyThings_AreTwelveAtMost)
{
    SlotDetails details;
    std::vector<Glance> glances;
    for (int i = 0; i < 20; ++i) {
        glances.push_back({ "A", "t" + std::to_string(i), 30 });
    }
    EXPECT_EQ(details.Of(Picked("A", glances), { "A", 0, "t0", "" }).size(), 12U);
}

}
