#pragma once

#include "desktop/qt/Desk.h"

#include <QDBusServiceWatcher>
#include <QMenu>
#include <QSystemTrayIcon>
#include <QTimer>
#include <functional>
#include <memory>

namespace tempodial {

/// The program in the desktop's tray, when a person wants that and there is one: then closing the last window only
/// hides it. Windows that are hidden come up when there is no tray any more, or none yet, for longer than a moment.
class TrayIcon
{
public:
    /// The desk must live as long as this.
    TrayIcon(Desk& desk, std::function<void()> raise);

    /// The seconds that it waits for a tray.
    static constexpr int Patience = 10;

    /// Says something while no window is seen; without the tray nobody hears it.
    void Say(const std::string& text);
    QMenu& Menu() { return mMenu; }
    bool IsShown() const { return mIcon && mIcon->isVisible(); }

private:
    void FillMenu();
    void Follow();
    /// True when there is a tray, as far as that can be asked by now.
    bool IsTrayThere();
    void Show();
    void LosePatience();

    Desk& mDesk;
    std::function<void()> mRaise;
    QMenu mMenu;
    std::unique_ptr<QSystemTrayIcon> mIcon;
    QDBusServiceWatcher mTrays;
    /// True when trays tell of themselves on the bus here.
    bool mAreOnBus = false;
    bool mIsPatient = true;
    QTimer mTimer;
    Subscription mEvents;
};

}
