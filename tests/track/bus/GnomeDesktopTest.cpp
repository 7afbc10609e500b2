#include "track/bus/GnomeDesktop.h"

#include "support/DesktopSourceFixture.h"
#include "support/DesktopTests.h"
#include "support/WaitingFor.h"
#include "track/bus/DesktopSession.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

namespace tempodial {

namespace {

using testing::HasSubstr;

using GnomeDesktopTest = DesktopSourceFixture<GnomeDesktop>;

}

TEST_F(GnomeDesktopTest, Window_InFront_IsToldWithItsWords)
{
    TEMPODIAL_DESKTOP_TEST();
    DesktopSession session(DesktopSession::Kind::GnomeWithExtension);
    const auto desktop = Opened();
    const auto sight = desktop->Sight();
    EXPECT_TRUE(sight.window && sight.title && sight.idle);
    EXPECT_EQ(sight.why, "");

    const auto first = session.Show("Plan \u2013 a");
    ASSERT_TRUE(ComesInFront(*desktop, DesktopSession::Terminal, "Plan \u2013 a"));
    EXPECT_GT(desktop->Window()->process, 0);
    session.Retitle("Map");
    ASSERT_TRUE(ComesInFront(*desktop, DesktopSession::Terminal, "Map"));
    EXPECT_EQ(Opened()->Window(), desktop->Window());
    EXPECT_GT(desktop->Idle()->count(), 0);
    first->End();
    EXPECT_TRUE(Comes(*desktop, [&] { return !desktop->Window(); }));
    session.End();
    while (desktop->Dispatch()) {
        pollfd waited { desktop->Descriptor(), desktop->Events(), 0 };
        ASSERT_EQ(::poll(&waited, 1, 10000), 1);
    }
}

TEST_F(GnomeDesktopTest, Idle_NobodyWasThere_IsToldByTheNextKey)
{
    TEMPODIAL_DESKTOP_TEST();
    const DesktopSession session(DesktopSession::Kind::GnomeWithExtension);
    const auto desktop = Opened();
    DesktopSession::Wait(2 * static_cast<int>(Notice.count()));
    ASSERT_TRUE(desktop->Dispatch());
    const auto idle = desktop->Idle().value();
    EXPECT_GE(idle, Notice);
    const auto keys = session.Run({ "python3", TEMPODIAL_SOURCE_DIR "/tests/track/bus/press_keys.py" });
    EXPECT_TRUE(Comes(*desktop, [&] { return desktop->Idle().value() < Notice; }));
}

TEST_F(GnomeDesktopTest, Open_WithoutTheExtension_SaysHowToHaveIt)
{
    TEMPODIAL_DESKTOP_TEST();
    const DesktopSession session(DesktopSession::Kind::Gnome);
    EXPECT_THAT(Refusal(), HasSubstr("gnome-extensions enable tempodial-43@tempodial.example"));
}

TEST_F(GnomeDesktopTest, Open_OtherSession_SaysWhy)
{
    TEMPODIAL_DESKTOP_TEST();
    const DesktopSession session(DesktopSession::Kind::None);
    EXPECT_THAT(Refusal(), HasSubstr("on the session's message bus"));
}

}
