#include "track/bus/KWinDesktop.h"

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

using KWinDesktopTest = DesktopSourceFixture<KWinDesktop>;

}

TEST_F(KWinDesktopTest, Window_InFront_IsToldWithItsWords)
{
    TEMPODIAL_DESKTOP_TEST();
    DesktopSession session(DesktopSession::Kind::KWin);
    const auto desktop = Opened();
    const auto sight = desktop->Sight();
    EXPECT_TRUE(sight.window && sight.title && sight.idle);
    EXPECT_EQ(sight.why, "");
    EXPECT_FALSE(desktop->Window());

    const auto first = session.Show("Plan \u2013 a");
    ASSERT_TRUE(ComesInFront(*desktop, DesktopSession::Terminal, "Plan \u2013 a"));
    EXPECT_GT(desktop->Window()->process, 0);
    session.Retitle("Map");
    ASSERT_TRUE(ComesInFront(*desktop, DesktopSession::Terminal, "Map"));
    const auto later = Opened();
    EXPECT_TRUE(ComesInFront(*later, DesktopSession::Terminal, "Map"));
    first->End();
    EXPECT_TRUE(Comes(*desktop, [&] { return !desktop->Window(); }));

    EXPECT_TRUE(Comes(*desktop, [&] { return desktop->Idle()->count() > 0; }));
    session.End();
    while (desktop->Dispatch()) {
        pollfd waited { desktop->Descriptor(), desktop->Events(), 0 };
        ASSERT_EQ(::poll(&waited, 1, 10000), 1);
    }
}

TEST_F(KWinDesktopTest, Open_OtherSession_SaysWhy)
{
    TEMPODIAL_DESKTOP_TEST();
    const DesktopSession session(DesktopSession::Kind::None);
    EXPECT_THAT(Refusal(), HasSubstr("on the session's message bus"));
}

}
