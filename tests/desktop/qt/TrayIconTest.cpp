#include "desktop/qt/TrayIcon.h"

#include "DesktopFixture.h"
#include "desktop/qt/ProgramIcon.h"

#include <QAction>
#include <QTest>

namespace tempodial {

class TrayIconTest : public DesktopFixture
{
};

TEST_F(TrayIconTest, ThereIsNoTray_ClosingTheLastWindowEndsAll)
{
    mDesk->Change([](DesktopSettings& settings) { settings.hasTray = true; });
    const TrayIcon tray(*mDesk, [] {});
    EXPECT_FALSE(tray.IsShown());
    EXPECT_FALSE(mDesk->StaysWhenClosed());
    Open().close();
    EXPECT_TRUE(mDesk->Windows().OpenExplorers().empty());
}

TEST_F(TrayIconTest, HiddenStart_NoTrayComes_BringsTheWindowsUp)
{
    mWindows = std::make_unique<HostWindows>(*mDesk, HostWindows::Beginning::Hidden);
    auto& window = *mWindows->WindowOf(mDesk->Windows().OpenExplorers().front());
    EXPECT_FALSE(window.isVisible());
    mDesk->Change([](DesktopSettings& settings) { settings.hasTray = true; });
    const TrayIcon tray(*mDesk, [this] { mWindows->Raise(); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.isVisible(); }, 2 * TrayIcon::Patience * 1000));
}

TEST_F(TrayIconTest, LastWindowClosed_WithATray_IsOnlyHidden)
{
    auto& window = Open();
    mDesk->SetStaysWhenClosed(true);
    window.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(mDesk->Windows().OpenExplorers().size(), 1U);
    mWindows->Raise();
    EXPECT_TRUE(window.isVisible());
}

TEST_F(TrayIconTest, Menu_Open_RaisesTheWindows)
{
    int raised = 0;
    TrayIcon tray(*mDesk, [&] { ++raised; });
    ASSERT_EQ(tray.Menu().actions().size(), 3);
    tray.Menu().actions()[0]->trigger();
    EXPECT_EQ(raised, 1);
}

TEST_F(TrayIconTest, ProgramIcon_IsThereInAllSizes)
{
    for (const auto side : { 16, 22, 32, 64 }) {
        EXPECT_EQ(ProgramIcon().pixmap(side).toImage().pixelColor(side / 2, side / 8), QColor("#2d6fcd")) << side;
    }
}

}
