#pragma once

#include "desktop/qt/Desk.h"

#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>
#include <functional>

namespace tempodial {

/// The program in the desktop's tray, when a person wants that and there is one: then closing the last window only
/// hides it.
class TrayIcon
{
public:
    /// The desk must live as long as this.
    TrayIcon(Desk& desk, std::function<void()> raise);

    /// Waits for a tray that isn't there yet, and brings the windows up when none comes; called after a hidden start.
    void WaitForTray();
    /// The seconds that it waits.
    static constexpr int Patience = 10;

    QMenu& Menu() { return mMenu; }
    bool IsShown() const { return mIcon.isVisible(); }

private:
    void Follow();
    void Look();

    Desk& mDesk;
    std::function<void()> mRaise;
    QMenu mMenu;
    QSystemTrayIcon mIcon;
    QTimer mTimer;
    int mSecondsLeft = Patience;
    Subscription mEvents;
};

}
