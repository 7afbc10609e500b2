#include "support/DesktopDay.h"
#include "support/DesktopTests.h"
#include "track/wayland/Compositor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

using testing::ElementsAre;

TEST(WaylandRecorderTest, Track_ThreeWindowsOfSway_AreThreeActivities)
{
    TEMPODIAL_DESKTOP_TEST();
    const Compositor sway(Compositor::Kind::Sway);
    const auto ledger = sway.Show("ledger", "sum");
    const auto quarry = sway.Show("quarry", "stone");
    const auto atlas = sway.Show("atlas", "map");
    sway.Await("atlas");
    sway.Await("ledger");
    sway.Await("quarry");
    sway.Command("[app_id=atlas] focus");
    EXPECT_EQ(DesktopDay::Probe(), (std::pair<int, std::string>(0, "wlr")));

    DesktopDay day(300);
    const auto press = [&sway] { sway.Press("a"); };
    day.Until(12, press);
    sway.Command("[app_id=ledger] focus");
    day.Until(18, press);
    sway.Command("[app_id=quarry] focus");
    day.Until(29, press);
    EXPECT_EQ(day.End(), 0);
    EXPECT_EQ(day.Lines(), ThreeWindows("Atlas, map", "Ledger, sum", "Quarry, stone"));
    EXPECT_THAT(day.Activities(), ElementsAre("Atlas, \"map\"", "Ledger, \"sum\"", "Quarry, \"stone\""));
}

TEST(WaylandRecorderTest, Probe_Weston_ChoosesNone)
{
    TEMPODIAL_DESKTOP_TEST();
    const Compositor weston(Compositor::Kind::Weston);
    EXPECT_EQ(DesktopDay::Probe(), (std::pair<int, std::string>(1, "")));
}

}
