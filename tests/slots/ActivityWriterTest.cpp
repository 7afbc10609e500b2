#include "slots/ActivityWriter.h"

#include "slots/SlotStreams.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

std::vector<PickedSlot> Picked(const std::vector<SlotTimes>& slots)
{
    SlotPicker picker;
    std::vector<PickedSlot> picked;
    for (const auto& times : slots) {
        if (auto slot = picker.Pick(times)) {
            picked.push_back(std::move(*slot));
        }
    }
    return picked;
}

std::vector<SlotTimes> Growing()
{
    return { Slot(288, { { "A", "a", 200, "p" }, { "B", "x", 100 } }), Slot(289, { { "A", "b", 300, "p" } }),
        Slot(290, { { "A", "c", 300, "p" } }), Slot(291, { { "C", "k", 100 }, { "C", "l", 99 }, { "C", "m", 101 } }) };
}

std::vector<std::string> TextsOf(const std::vector<FiledSlot>& slots)
{
    std::vector<std::string> texts;
    for (const auto& filed : slots) {
        texts.push_back((filed.slot.continues ? "+" : "") + filed.slot.words.text);
    }
    return texts;
}

using Lines = std::vector<std::string>;

}

TEST(ActivityWriterTest, GrowingActivities_Words_GrowWithTheActivity)
{
    GrowingActivities activities;
    std::vector<FiledSlot> filed;
    for (auto& slot : Picked(Growing())) {
        if (auto before = activities.Add(std::move(slot))) {
            filed.push_back(std::move(*before));
        }
    }
    EXPECT_EQ(filed.size(), 3U);
    filed.push_back(activities.End().value());
    EXPECT_FALSE(activities.End());
    EXPECT_EQ(TextsOf(filed), (Lines { "a", "+b", "+p", "m, k, l" }));
    EXPECT_EQ(filed[0].midnight, 86400);
    EXPECT_EQ(filed[0].slot.start, 0);
    EXPECT_EQ(filed[0].slot.end, 300);
    EXPECT_EQ(filed[0].slot.details, Lines { "B: x" });
    EXPECT_FALSE(filed[0].slot.tellsDetailsAlone);
    EXPECT_TRUE(filed[3].slot.tellsDetailsAlone);
}

TEST(ActivityWriterTest, WholeActivities_Words_AreTheLastOnesFromTheBeginning)
{
    const auto filed = WholeActivities(Picked(Growing()));
    EXPECT_EQ(TextsOf(filed), (Lines { "p", "+p", "+p", "m, k, l" }));
    EXPECT_EQ(filed[0].slot.details, (Lines { "a", "B: x" }));
    EXPECT_EQ(filed[1].slot.details, Lines { "b" });
    EXPECT_TRUE(WholeActivities({}).empty());
}

}
