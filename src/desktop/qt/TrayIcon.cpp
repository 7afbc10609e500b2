#include "desktop/qt/TrayIcon.h"

#include "desktop/qt/ProgramIcon.h"
#include "session/ProductFacts.h"

#include <QAction>
#include <QCoreApplication>

namespace tempodial {

namespace {

constexpr int Second = 1000;

}

TrayIcon::TrayIcon(Desk& desk, std::function<void()> raise)
    : mDesk(desk)
    , mRaise(std::move(raise))
    , mIcon(ProgramIcon())
    , mEvents(desk.Subscribe({ .Restyled = [this] { Follow(); } }))
{
    QObject::connect(mMenu.addAction("&Open"), &QAction::triggered, &mMenu, [this] { mRaise(); });
    QObject::connect(mMenu.addAction("&Refresh"), &QAction::triggered, &mMenu,
        [this] { mDesk.Do([this] { mDesk.Session().AddIn().SyncData(SavedDataDays, true); }); });
    QObject::connect(mMenu.addAction("&Quit"), &QAction::triggered, &mMenu, [this] { mDesk.Quit(); });
    mIcon.setContextMenu(&mMenu);
    mIcon.setToolTip(ProductName);
    QObject::connect(&mIcon, &QSystemTrayIcon::activated, &mMenu, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger) {
            mRaise();
        }
    });
    QObject::connect(&mTimer, &QTimer::timeout, &mMenu, [this] { Look(); });
    Follow();
}

void TrayIcon::Follow()
{
    mIcon.setVisible(mDesk.Settings().hasTray && QSystemTrayIcon::isSystemTrayAvailable());
    mDesk.SetStaysWhenClosed(mIcon.isVisible());
}

void TrayIcon::WaitForTray()
{
    mTimer.start(Second);
}

void TrayIcon::Look()
{
    Follow();
    if (IsShown()) {
        mTimer.stop();
    } else if (--mSecondsLeft <= 0) {
        mTimer.stop();
        mRaise();
    }
}

}
