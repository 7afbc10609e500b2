#include "support/DesktopDay.h"
#include "support/DesktopTests.h"
#include "track/bus/DesktopSession.h"
#include "track/bus/FakeInput.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::ElementsAre;

/// Three windows, each of a program of its own, since a desktop may give a window the focus that is new, and no other.
void ExpectThreeActivities(const DesktopSession& session, const std::function<void()>& press)
{
    auto window = session.Run({ "weston-resizor" });
    DesktopSession::Wait(500);
    // These desktops take a while to answer who comes new.
    DesktopDay day(100);
    day.Until(12, press);
    window.reset();
    window = session.Run({ "weston-clickdot" });
    day.Until(18, press);
    window.reset();
    window = session.Run({ "weston-eventdemo" });
    day.Until(29, press);
    EXPECT_EQ(day.End(), 0);
    EXPECT_EQ(day.Lines(),
        ThreeWindows("Wayland-resizor, Wayland Resizor", "Wayland-clickdot, Wayland ClickDot", "Eventdemo, EventDemo"));
    EXPECT_THAT(day.Activities(),
        ElementsAre("Wayland-resizor, \"Wayland Resizor\"", "Wayland-clickdot, \"Wayland ClickDot\"",
            "Eventdemo, \"EventDemo\""));
}

}

TEST(BusRecorderTest, Track_ThreeWindowsOfPlasma_AreThreeActivities)
{
    TEMPODIAL_DESKTOP_TEST();
    const DesktopSession session(DesktopSession::Kind::KWin);
    EXPECT_EQ(DesktopDay::Probe(), (std::pair<int, std::string>(0, "kwin")));
    const FakeInput input;
    ASSERT_TRUE(input.IsThere());
    ExpectThreeActivities(session, [&input] { input.Move(); });
}

TEST(BusRecorderTest, Track_ThreeWindowsOfGnome_AreThreeActivities)
{
    TEMPODIAL_DESKTOP_TEST();
    const DesktopSession session(DesktopSession::Kind::GnomeWithExtension);
    EXPECT_EQ(DesktopDay::Probe(), (std::pair<int, std::string>(0, "gnome")));
    const auto keys = session.Run({ "python3", TEMPODIAL_SOURCE_DIR "/tests/track/bus/press_keys.py" });
    ExpectThreeActivities(session, [] {});
}

TEST(BusRecorderTest, Probe_GnomeWithoutTheExtension_ChoosesNone)
{
    TEMPODIAL_DESKTOP_TEST();
    const DesktopSession session(DesktopSession::Kind::Gnome);
    EXPECT_EQ(DesktopDay::Probe(), (std::pair<int, std::string>(1, "")));
}

}
