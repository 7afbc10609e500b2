#include "track/wayland/WlrDesktop.h"

#include "support/DesktopSourceFixture.h"
#include "support/DesktopTests.h"
#include "support/WaitingFor.h"
#include "track/wayland/Compositor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

namespace tempodial {

namespace {

using testing::HasSubstr;

using WlrDesktopTest = DesktopSourceFixture<WlrDesktop>;

}

TEST_F(WlrDesktopTest, Window_InFront_IsToldWithItsWords)
{
    TEMPODIAL_DESKTOP_TEST();
    const Compositor sway(Compositor::Kind::Sway);
    const auto desktop = Opened();
    const auto sight = desktop->Sight();
    EXPECT_TRUE(sight.window && sight.title && sight.idle);
    EXPECT_EQ(sight.why, "");
    EXPECT_FALSE(desktop->Window());

    auto editor = sway.Show("atlas", "Plan \u2013 a");
    ASSERT_TRUE(ComesInFront(*desktop, "atlas", "Plan \u2013 a"));
    const auto terminal = sway.Show("org.example.Shell", "shell");
    ASSERT_TRUE(ComesInFront(*desktop, "org.example.Shell", "shell"));
    sway.Command("[app_id=atlas] focus");
    ASSERT_TRUE(ComesInFront(*desktop, "atlas", "Plan \u2013 a"));
    sway.Retitle("atlas", "Map");
    ASSERT_TRUE(ComesInFront(*desktop, "atlas", "Map"));
    EXPECT_EQ(Opened()->Window(), desktop->Window());

    editor->End();
    ASSERT_TRUE(ComesInFront(*desktop, "org.example.Shell", "shell"));
    sway.Command("workspace 2");
    EXPECT_TRUE(Comes(*desktop, [&] { return !desktop->Window(); }));
}

TEST_F(WlrDesktopTest, Idle_NobodyThere_IsToldFromTheLastInputOn)
{
    TEMPODIAL_DESKTOP_TEST();
    const Compositor sway(Compositor::Kind::Sway);
    const auto desktop = Opened();
    EXPECT_EQ(desktop->Idle(), std::chrono::milliseconds(0));
    ASSERT_TRUE(Comes(*desktop, [&] { return desktop->Idle()->count() > 0; }));
    EXPECT_GE(*desktop->Idle(), Notice);
    const auto window = sway.Show("atlas", "Plan");
    ASSERT_TRUE(ComesInFront(*desktop, "atlas", "Plan"));
    sway.Press("a");
    EXPECT_TRUE(Comes(*desktop, [&] { return desktop->Idle()->count() == 0; }));
}

TEST_F(WlrDesktopTest, Dispatch_CompositorGone_IsFalse)
{
    TEMPODIAL_DESKTOP_TEST();
    Compositor sway(Compositor::Kind::Sway);
    const auto desktop = Opened();
    sway.End();
    bool isThere = true;
    for (int i = 0; i < 500 && isThere; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        isThere = desktop->Dispatch();
    }
    EXPECT_FALSE(isThere);
}

TEST_F(WlrDesktopTest, Open_CompositorThatTellsNothing_NamesIt)
{
    TEMPODIAL_DESKTOP_TEST();
    const Compositor weston(Compositor::Kind::Weston);
    EXPECT_THAT(Refusal(), HasSubstr("weston tells no program which window is in front"));
}

TEST_F(WlrDesktopTest, Open_WithoutASession_SaysWhy)
{
    ::unsetenv("WAYLAND_DISPLAY");
    EXPECT_THAT(Refusal(), HasSubstr("WAYLAND_DISPLAY isn't set"));
    ::setenv("WAYLAND_DISPLAY", "/nowhere/wayland-9", 1);
    EXPECT_THAT(Refusal(), HasSubstr("no compositor answers at WAYLAND_DISPLAY /nowhere/wayland-9"));
    ::unsetenv("WAYLAND_DISPLAY");
}

}
