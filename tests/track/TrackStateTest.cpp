#include "track/TrackState.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

TrackState WholeState()
{
    SlotView view;
    view.program = "Firefox";
    view.sort = ProgramSort::Browser;
    view.kind = 2;
    view.text = "a b";
    view.place = "b";
    view.project = "Riverside";
    TrackState state;
    state.isPaused = true;
    state.pausedUntil = 12345678;
    state.project = "Riverside plan";
    state.input = 99;
    state.patience = 180000;
    state.slots = { { .start = 600, .presence = 30000, .views = { { view, 29000 } } } };
    state.unsaved = { { 86400, "<slot>a\tb</slot>" } };
    state.stretches = { { 900000, 905000, view }, { 905000, 906000, std::nullopt } };
    return state;
}

TEST(TrackStateTest, Of_ItsOwnText_IsTheSame)
{
    const auto state = TrackState::Of(WholeState().Text());
    EXPECT_EQ(state.Text(), WholeState().Text());
    EXPECT_EQ(state.pausedUntil, 12345678);
    EXPECT_EQ(state.project, "Riverside plan");
    ASSERT_EQ(state.slots.size(), 1U);
    ASSERT_EQ(state.slots[0].views.size(), 1U);
    EXPECT_EQ(state.slots[0].views[0].view, WholeState().slots[0].views[0].view);
    EXPECT_EQ(state.stretches, WholeState().stretches);
    EXPECT_EQ(state.unsaved, WholeState().unsaved);
}

TEST(TrackStateTest, Of_PauseWithoutAnEnd_IsOne)
{
    TrackState state;
    state.isPaused = true;
    EXPECT_TRUE(TrackState::Of(state.Text()).isPaused);
    EXPECT_FALSE(TrackState::Of(state.Text()).pausedUntil);
}

TEST(TrackStateTest, Of_TextCutAnywhere_IsReadAsFarAsItGoes)
{
    const auto whole = WholeState().Text();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const auto state = TrackState::Of(whole.substr(0, size));
        EXPECT_LE(state.slots.size(), 1U);
        EXPECT_EQ(whole.find(state.project), state.project.empty() ? 0 : whole.find("Riverside plan"));
    }
}

TEST(TrackStateTest, Of_Nonsense_IsLeftOut)
{
    const auto state
        = TrackState::Of("slot\t601\t5\nslot\tx\t5\nview\t5\nslot\t600\t-1\nstretch\t1\ninput\tx\ty\n\n\t\n");
    EXPECT_TRUE(state.slots.empty());
    EXPECT_TRUE(state.stretches.empty());
    EXPECT_EQ(state.input, 0);
}

}

}
