#include "slots/ActivityRuns.h"

#include "slots/SlotStreams.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

/// The slots as "program/place", with a plus in front of one that goes on.
std::vector<std::string> Runs(const std::vector<SlotTimes>& slots)
{
    SlotPicker picker;
    ActivityRuns runs;
    std::vector<std::string> told;
    const auto tell = [&told](const std::optional<RunSlot>& run) {
        if (run) {
            told.push_back((run->continues ? "+" : "") + run->slot.program + "/" + run->slot.place);
        }
    };
    for (const auto& times : slots) {
        if (auto slot = picker.Pick(times)) {
            tell(runs.Add(std::move(*slot)));
        }
    }
    tell(runs.End());
    return told;
}

using Told = std::vector<std::string>;

}

TEST(ActivityRunsTest, Add_SamePlace_GoesOn)
{
    EXPECT_EQ(Runs({ Slot(0, { { "A", "a", 300 } }), Slot(1, { { "A", "a", 300 } }), Slot(2, { { "B", "b", 300 } }) }),
        (Told { "A/a", "+A/a", "B/b" }));
}

TEST(ActivityRunsTest, Add_SameWordsInAnotherPlace_GoOn)
{
    EXPECT_EQ(Runs({ Slot(0, { { "A", "t", 300, "x" } }), Slot(1, { { "A", "t", 300, "y" } }),
                  Slot(2, { { "A", "t", 300, "y" } }) }),
        (Told { "A/x", "+A/y", "+A/y" }));
}

TEST(ActivityRunsTest, Add_GapBetween_EndsTheActivity)
{
    EXPECT_EQ(Runs({ Slot(0, { { "A", "a", 300 } }), Slot(2, { { "A", "a", 300 } }) }), (Told { "A/a", "A/a" }));
    EXPECT_EQ(
        Runs({ Slot(0, { { "A", "a", 300 } }), Slot(1, { { "A", "a", 100 } }, 100), Slot(2, { { "A", "a", 300 } }) }),
        (Told { "A/a", "A/a" }));
}

TEST(ActivityRunsTest, Add_Midnight_EndsTheActivity)
{
    EXPECT_EQ(
        Runs({ Slot(287, { { "A", "a", 300 } }), Slot(288, { { "A", "a", 300 } }), Slot(289, { { "A", "a", 300 } }) }),
        (Told { "A/a", "A/a", "+A/a" }));
}

TEST(ActivityRunsTest, Add_LoneSlotBetween_JoinsWithHalfAMinute)
{
    const auto between = [](std::int64_t seconds) {
        return Runs({ Slot(0, { { "A", "a", 300 } }), Slot(1, { { "B", "b", 270 }, { "A", "z", seconds } }),
            Slot(2, { { "A", "a", 300 } }) });
    };
    EXPECT_EQ(between(30), (Told { "A/a", "+A/a", "+A/a" }));
    EXPECT_EQ(between(29), (Told { "A/a", "B/b", "A/a" }));
}

TEST(ActivityRunsTest, Add_TwoSlotsOfAnother_DoNotJoin)
{
    EXPECT_EQ(Runs({ Slot(0, { { "A", "a", 300 } }), Slot(1, { { "B", "b", 250 }, { "A", "a", 50 } }),
                  Slot(2, { { "B", "b", 300 } }), Slot(3, { { "A", "a", 300 } }) }),
        (Told { "A/a", "B/b", "+B/b", "A/a" }));
}

TEST(ActivityRunsTest, Add_LoneSlotsInSeveralPlaces_MeltIntoOne)
{
    EXPECT_EQ(Runs({ Slot(0, { { "A", "a", 300 } }), Slot(1, { { "A", "b", 300 } }), Slot(2, { { "A", "c", 300 } }),
                  Slot(3, { { "B", "x", 300 } }) }),
        (Told { "A/a", "+A/b", "+A/c", "B/x" }));
}

TEST(ActivityRunsTest, Add_TwoSlotsInOnePlace_AreAnActivityOfTheirOwn)
{
    EXPECT_EQ(Runs({ Slot(0, { { "A", "a", 300 } }), Slot(1, { { "A", "b", 300 } }), Slot(2, { { "A", "c", 300 } }),
                  Slot(3, { { "A", "c", 300 } }), Slot(4, { { "A", "d", 300 } }), Slot(5, { { "A", "e", 300 } }) }),
        (Told { "A/a", "+A/b", "A/c", "+A/c", "A/d", "+A/e" }));
    EXPECT_EQ(Runs({ Slot(0, { { "A", "a", 300 } }), Slot(1, { { "A", "b", 300 } }), Slot(2, { { "A", "b", 300 } }) }),
        (Told { "A/a", "A/b", "+A/b" }));
}

TEST(ActivityRunsTest, Add_AnotherProject_IsAnotherActivity)
{
    EXPECT_EQ(Runs({ Slot(0, { { "A", "a", 300, "a", "P" } }), Slot(1, { { "A", "a", 300, "a", "Q" } }),
                  Slot(2, { { "A", "b", 300, "b", "P" } }) }),
        (Told { "A/a", "A/a", "A/b" }));
}

TEST(ActivityRunsTest, End_NothingWaits_GivesNothing)
{
    ActivityRuns runs;
    EXPECT_FALSE(runs.End());
    EXPECT_FALSE(runs.Add({ .start = 300, .program = "A" }));
    EXPECT_TRUE(runs.End());
    EXPECT_FALSE(runs.End());
}

}
