#include "slots/ActivityWriter.h"

#include "slots/SlotStreams.h"

#include <gtest/gtest.h>

#include <chrono>

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

TEST(ActivityWriterTest, Activities_NewTitleEachSecondForEightHours_AreMadeAtOnce)
{
    constexpr int Slots = 96;
    std::vector<SlotTimes> times;
    for (int slot = 0; slot < Slots; ++slot) {
        std::vector<Glance> glances;
        for (int second = 0; second < SlotSeconds; ++second) {
            glances.push_back({ "A", "frame " + std::to_string(slot * SlotSeconds + second), 1, "film" });
        }
        times.push_back(Slot(slot, glances));
    }
    const auto slots = Picked(times);
    const auto start = std::chrono::steady_clock::now();
    GrowingActivities growing;
    for (const auto& slot : slots) {
        growing.Add(slot);
    }
    EXPECT_EQ(growing.End()->slot.words.text, "film");
    const auto filed = WholeActivities(slots);
    EXPECT_EQ(filed.size(), std::size_t { Slots });
    EXPECT_EQ(filed.back().slot.words.text, "film");
    // A time that grows with the square of the titles is minutes here.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

}
