#include "track/x11/X11Desktop.h"

#include "support/WaitingFor.h"
#include "track/x11/XServer.h"
#include "track/x11/XWindow.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>
#include <unistd.h>

namespace tempodial {

namespace {

using namespace std::string_view_literals;
using testing::HasSubstr;

constexpr auto Editor = "editor\0Atlas\0"sv;
constexpr auto Terminal = "xterm\0XTerm\0"sv;
constexpr std::chrono::milliseconds Usual { 15000 };

class X11DesktopTest : public testing::Test
{
protected:
    static std::unique_ptr<DesktopSource> Opened(std::chrono::milliseconds notice = Usual)
    {
        DesktopSight sight;
        auto desktop = X11Desktop::Open({ notice }, sight);
        EXPECT_TRUE(desktop) << sight.why;
        return desktop;
    }
    static std::string Refusal()
    {
        DesktopSight sight;
        EXPECT_FALSE(X11Desktop::Open({}, sight));
        EXPECT_FALSE(sight.window || sight.title || sight.idle || sight.lock);
        return sight.why;
    }
};

class NoXServerTest : public X11DesktopTest
{
};

}

TEST_F(X11DesktopTest, Window_InFront_IsToldWithItsWords)
{
    const XServer server(XServer::Manager::Openbox);
    const X11Connection connection;
    const auto desktop = Opened();
    EXPECT_FALSE(desktop->Window());
    const auto sight = desktop->Sight();
    EXPECT_TRUE(sight.window && sight.title && sight.idle);
    EXPECT_EQ(sight.why, "");

    const XWindow editor(connection, Editor);
    editor.SetTitle("Plan \xe2\x80\x93 Atlas");
    editor.SayNumber("_NET_WM_PID", "CARDINAL", 4711);
    ASSERT_TRUE(ComesInFront(*desktop, "Atlas", "Plan \xe2\x80\x93 Atlas"));
    EXPECT_EQ(desktop->IsLocked(), std::nullopt);

    const XWindow terminal(connection, Terminal);
    terminal.Say("WM_NAME", "STRING", "caf\xe9");
    ASSERT_TRUE(ComesInFront(*desktop, "XTerm", "caf\xc3\xa9"));
    editor.Activate();
    ASSERT_TRUE(ComesInFront(*desktop, "Atlas", "Plan \xe2\x80\x93 Atlas"));
    EXPECT_EQ(desktop->Window()->process, 4711);

    // A connection that is made later sees the same.
    const auto later = Opened();
    EXPECT_EQ(later->Window(), desktop->Window());
}

TEST_F(X11DesktopTest, Title_Changing_IsToldInEachEncoding)
{
    const XServer server(XServer::Manager::Openbox);
    const X11Connection connection;
    const auto desktop = Opened();
    const XWindow terminal(connection, Terminal);
    terminal.Say("WM_NAME", "COMPOUND_TEXT", "a \x1b-L\xe0 \x1b%G\xe2\x82\xac\x1b%@ b"sv);
    ASSERT_TRUE(ComesInFront(*desktop, "XTerm", "a \xd1\x80 \xe2\x82\xac b"));
    // As some programs say it.
    terminal.Say("_NET_WM_NAME", "STRING", "one \xe2\x82\xac");
    ASSERT_TRUE(ComesInFront(*desktop, "XTerm", "one \xe2\x82\xac"));
    terminal.Say("_NET_WM_NAME", "UTF8_STRING", "broken \xe2\x82");
    terminal.Say("WM_NAME", "UTF8_STRING", "two");
    ASSERT_TRUE(ComesInFront(*desktop, "XTerm", "two"));
    terminal.Say("_NET_WM_NAME", "UTF8_STRING", std::string(10000, 'x'));
    ASSERT_TRUE(ComesInFront(*desktop, "XTerm", std::string(10000, 'x')));
    terminal.Say("WM_CLASS", "STRING", "only\0\0"sv);
    ASSERT_TRUE(ComesInFront(*desktop, "only", std::string(10000, 'x')));
}

TEST_F(X11DesktopTest, Window_Gone_StaysForAMoment)
{
    const XServer server(XServer::Manager::Openbox);
    const X11Connection connection;
    const auto slow = Opened();
    const auto quick = Opened(std::chrono::milliseconds(75));
    {
        const XWindow editor(connection, Editor);
        editor.SetTitle("Plan");
        ASSERT_TRUE(ComesInFront(*slow, "Atlas", "Plan"));
        ASSERT_TRUE(ComesInFront(*quick, "Atlas", "Plan"));
    }
    pollfd waited { quick->Descriptor(), POLLIN, 0 };
    ASSERT_EQ(::poll(&waited, 1, 5000), 1);
    for (int i = 0; quick->Window() && i < 500; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        ASSERT_TRUE(quick->Dispatch());
    }
    EXPECT_FALSE(quick->Window());
    ASSERT_TRUE(slow->Dispatch());
    EXPECT_TRUE(slow->Window());
    const XWindow terminal(connection, Terminal);
    terminal.SetTitle("shell");
    EXPECT_TRUE(ComesInFront(*quick, "XTerm", "shell"));
}

TEST_F(X11DesktopTest, Idle_AfterAKey_IsShortAndGrows)
{
    const XServer server(XServer::Manager::Openbox);
    const X11Connection connection;
    const auto desktop = Opened();
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    const auto before = desktop->Idle();
    ASSERT_TRUE(before);
    EXPECT_GE(before->count(), 300);
    server.Press("a");
    const auto pressed = desktop->Idle();
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    const auto later = desktop->Idle();
    ASSERT_TRUE(pressed && later);
    EXPECT_LT(*pressed, *before);
    EXPECT_GE(later->count(), pressed->count() + 50);
}

TEST_F(X11DesktopTest, Idle_NobodyWasThere_IsToldByTheNextKey)
{
    // A window manager would have events at each key, and nothing but the server's own word is to tell.
    const XServer server(XServer::Manager::None);
    constexpr std::chrono::milliseconds Notice(100);
    const auto desktop = Opened(Notice);
    std::this_thread::sleep_for(Notice * 6);
    ASSERT_TRUE(desktop->Dispatch());
    const auto idle = desktop->Idle().value();
    EXPECT_GE(idle, Notice * 4);
    EXPECT_GE(desktop->Idle().value(), idle);
    pollfd quiet { desktop->Descriptor(), POLLIN, 0 };
    ASSERT_EQ(::poll(&quiet, 1, 0), 0);
    server.Press("a");
    pollfd waited { desktop->Descriptor(), POLLIN, 0 };
    ASSERT_EQ(::poll(&waited, 1, 10000), 1);
    ASSERT_TRUE(desktop->Dispatch());
    EXPECT_LT(desktop->Idle().value(), idle);
}

TEST_F(X11DesktopTest, Idle_AskedBetweenEvents_LosesNone)
{
    const XServer server(XServer::Manager::Openbox);
    const X11Connection connection;
    const auto desktop = Opened();
    const XWindow editor(connection, Editor);
    editor.SetTitle("Plan");
    ASSERT_TRUE(ComesInFront(*desktop, "Atlas", "Plan"));
    for (int i = 0; i < 200; ++i) {
        editor.SetTitle("Plan " + std::to_string(i));
        // The answer brings the change in, which the descriptor then tells no more.
        desktop->Idle();
    }
    EXPECT_TRUE(ComesInFront(*desktop, "Atlas", "Plan 199"));
}

TEST_F(X11DesktopTest, Window_WithoutAManager_IsThatWithTheFocus)
{
    const XServer server(XServer::Manager::None);
    const X11Connection connection;
    const auto desktop = Opened();
    const XWindow editor(connection, Editor);
    const XWindow terminal(connection, Terminal);
    editor.SetTitle("Plan");
    terminal.SetTitle("shell");
    for (const auto* window : { &editor, &terminal }) {
        // The answer says that the window is shown, since only then it may have the focus.
        connection.Atom("x");
        window->TakeFocus();
        connection.Atom("x");
        ASSERT_TRUE(desktop->Dispatch());
        ASSERT_TRUE(desktop->Window());
        EXPECT_EQ(desktop->Window()->title, window == &editor ? "Plan" : "shell");
    }
}

TEST_F(X11DesktopTest, Dispatch_ServerGone_IsFalse)
{
    XServer server(XServer::Manager::Openbox);
    const auto desktop = Opened();
    server.End();
    while (desktop->Dispatch()) {
        pollfd waited { desktop->Descriptor(), POLLIN, 0 };
        ASSERT_EQ(::poll(&waited, 1, 5000), 1);
    }
    EXPECT_EQ(desktop->Idle(), std::nullopt);
}

TEST_F(NoXServerTest, Open_WithoutASession_SaysWhy)
{
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");
    EXPECT_THAT(Refusal(), HasSubstr("DISPLAY isn't set"));
    ::setenv("DISPLAY", ":987654", 1);
    EXPECT_THAT(Refusal(), HasSubstr("no X server answers at DISPLAY :987654"));
    ::setenv("WAYLAND_DISPLAY", "wayland-1", 1);
    EXPECT_THAT(Refusal(), HasSubstr("session of Wayland"));
    ::unsetenv("DISPLAY");
    ::unsetenv("WAYLAND_DISPLAY");
}

}
