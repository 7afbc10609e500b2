#include "slots/SlotPicker.h"

#include "slots/SlotStreams.h"

#include <gtest/gtest.h>

#include <chrono>

namespace tempodial {

TEST(SlotPickerTest, Pick_LessThanHalf_DoesNotCount)
{
    SlotPicker picker;
    EXPECT_FALSE(picker.Pick(Slot(0, { { "A", "a", 149 } }, 149)));
    EXPECT_TRUE(picker.Pick(Slot(1, { { "A", "a", 150 } }, 150)));
}

TEST(SlotPickerTest, Pick_MostTime_HasProgramAndPlace)
{
    SlotPicker picker;
    const auto slot
        = picker.Pick(Slot(0, { { "A", "a1", 100 }, { "B", "b", 110 }, { "A", "a2", 50 }, { "A", "a1", 20 } }));
    ASSERT_TRUE(slot);
    EXPECT_EQ(slot->program, "A");
    EXPECT_EQ(slot->place, "a1");
    EXPECT_EQ(slot->text, "a1");
    EXPECT_EQ(slot->SecondsOf("A"), 170);
}

TEST(SlotPickerTest, Pick_ProgramBefore_StaysWithAThird)
{
    SlotPicker picker;
    picker.Pick(Slot(0, { { "A", "a", 300 } }));
    EXPECT_EQ(picker.Pick(Slot(1, { { "A", "a", 60 }, { "B", "b", 180 } }))->program, "A");
    EXPECT_EQ(picker.Pick(Slot(2, { { "A", "a", 59 }, { "B", "b", 180 } }))->program, "B");
    EXPECT_EQ(picker.Pick(Slot(3, { { "A", "a", 180 }, { "B", "b", 60 } }))->program, "B");
}

TEST(SlotPickerTest, Pick_PlaceBefore_StaysWithAThird)
{
    SlotPicker picker;
    picker.Pick(Slot(0, { { "A", "x", 300 } }));
    EXPECT_EQ(picker.Pick(Slot(1, { { "A", "x", 60 }, { "A", "y", 180 } }))->place, "x");
    EXPECT_EQ(picker.Pick(Slot(2, { { "A", "x", 59 }, { "A", "y", 180 } }))->place, "y");
}

TEST(SlotPickerTest, Pick_TimeOfSlotThatDoesNotCount_GoesToTheNext)
{
    SlotPicker picker;
    EXPECT_FALSE(picker.Pick(Slot(0, { { "A", "a", 140 } }, 140)));
    const auto slot = picker.Pick(Slot(1, { { "B", "b", 130 }, { "A", "a", 30 } }, 160));
    ASSERT_TRUE(slot);
    EXPECT_EQ(slot->program, "A");
    EXPECT_EQ(slot->SecondsOf("A"), 170);
}

TEST(SlotPickerTest, Pick_NobodyInBetween_CarriesNothing)
{
    SlotPicker picker;
    EXPECT_FALSE(picker.Pick(Slot(0, { { "A", "a", 140 } }, 140)));
    EXPECT_FALSE(picker.Pick(Slot(1, {}, 0)));
    EXPECT_EQ(picker.Pick(Slot(2, { { "B", "b", 150 } }, 150))->SecondsOf("A"), 0);
    EXPECT_FALSE(picker.Pick(Slot(3, { { "A", "a", 140 } }, 140)));
    EXPECT_EQ(picker.Pick(Slot(5, { { "B", "b", 150 } }, 150))->SecondsOf("A"), 0);
}

TEST(SlotPickerTest, Pick_NothingSeen_GoesOnAsBefore)
{
    SlotPicker picker;
    EXPECT_FALSE(picker.Pick(Slot(0, {}, 300)));
    picker.Pick(Slot(1, { { "A", "a", 300 } }));
    const auto slot = picker.Pick(Slot(2, {}, 300));
    ASSERT_TRUE(slot);
    EXPECT_EQ(slot->program, "A");
    EXPECT_EQ(slot->place, "a");
    EXPECT_TRUE(slot->views.empty());
}

TEST(SlotPickerTest, EndSession_StickinessAndCarry_AreGone)
{
    SlotPicker picker;
    picker.Pick(Slot(0, { { "A", "a", 300 } }));
    picker.EndSession();
    EXPECT_EQ(picker.Pick(Slot(1, { { "A", "a", 100 }, { "B", "b", 101 } }))->program, "B");
}

TEST(SlotPickerTest, Pick_LongRowOfSlotsThatDoNotCount_CarriesTheLargestViews)
{
    SlotPicker picker;
    constexpr int Slots = 300;
    constexpr int Seconds = 140;
    const auto start = std::chrono::steady_clock::now();
    for (int slot = 0; slot < Slots; ++slot) {
        std::vector<Glance> glances { { "A", "map", 5 } };
        for (int second = 5; second < Seconds; ++second) {
            glances.push_back({ "A", std::to_string(slot) + " " + std::to_string(second), 1 });
        }
        ASSERT_FALSE(picker.Pick(Slot(slot, glances, Seconds)));
    }
    const auto picked = picker.Pick(Slot(Slots, { { "A", "plan", 300 } }));
    ASSERT_TRUE(picked);
    EXPECT_EQ(picked->text, "map");
    EXPECT_LE(picked->views.size(), 301U);
    // A time that grows with the square of the titles is minutes here.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

}
