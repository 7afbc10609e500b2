#include "support/DesktopDay.h"
#include "track/x11/XServer.h"
#include "track/x11/XWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

using namespace std::string_view_literals;
using testing::ElementsAre;

TEST(X11RecorderTest, Track_ThreeWindowsOfOpenbox_AreThreeActivities)
{
    const XServer server(XServer::Manager::Openbox);
    const X11Connection connection;
    const XWindow ledger(connection, "ledger\0Ledger\0"sv);
    ledger.SetTitle("sum");
    const XWindow quarry(connection, "quarry\0Quarry\0"sv);
    quarry.SetTitle("stone");
    const XWindow atlas(connection, "atlas\0Atlas\0"sv);
    atlas.SetTitle("map");
    EXPECT_EQ(DesktopDay::Probe(), (std::pair<int, std::string>(0, "x11")));

    const auto press = [&server](const XWindow& window) {
        window.Activate();
        server.Press("a");
    };
    press(atlas);
    DesktopDay day(300);
    day.Until(12, [&] { press(atlas); });
    day.Until(18, [&] { press(ledger); });
    day.Until(29, [&] { press(quarry); });
    EXPECT_EQ(day.End(), 0);
    EXPECT_EQ(day.Lines(), ThreeWindows("Atlas, map", "Ledger, sum", "Quarry, stone"));
    EXPECT_THAT(day.Activities(), ElementsAre("Atlas, \"map\"", "Ledger, \"sum\"", "Quarry, \"stone\""));
}

TEST(X11RecorderTest, Probe_NoDesktop_ChoosesNone)
{
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");
    EXPECT_EQ(DesktopDay::Probe(), (std::pair<int, std::string>(1, "")));
}

}
