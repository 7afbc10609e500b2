#include "desktop/qt/TrayIcon.h"

#include "desktop/qt/ProgramIcon.h"
#include "desktop/qt/QtText.h"
#include "session/ProductFacts.h"

#include <QAction>
#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <algorithm>

namespace tempodial {

namespace {

/// By that name a tray is found on the session's bus.
constexpr auto BusName = "org.kde.StatusNotifierWatcher";

bool IsAnyWindowShown()
{
    const auto windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) { return window->isVisible(); });
}

}

TrayIcon::TrayIcon(Desk& desk, std::function<void()> raise)
    : mDesk(desk)
    , mRaise(std::move(raise))
    , mTrays(BusName, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForOwnerChange)
    , mEvents(desk.Subscribe({ .Restyled = [this] { Follow(); } }))
{
    FillMenu();
    mTimer.setSingleShot(true);
    QObject::connect(&mTimer, &QTimer::timeout, &mMenu, [this] { LosePatience(); });
    QObject::connect(&mTrays, &QDBusServiceWatcher::serviceOwnerChanged, &mMenu, [this] {
        mIsPatient = true;
        Follow();
    });
    Follow();
}

void TrayIcon::FillMenu()
{
    QObject::connect(mMenu.addAction("&Open"), &QAction::triggered, &mMenu, [this] { mRaise(); });
    QObject::connect(mMenu.addAction("&Refresh"), &QAction::triggered, &mMenu,
        [this] { mDesk.Do([this] { mDesk.Session().AddIn().SyncData(SavedDataDays, true); }); });
    QObject::connect(mMenu.addAction("&Quit"), &QAction::triggered, &mMenu, [this] { mDesk.Quit(); });
}

bool TrayIcon::IsTrayThere()
{
    const auto* bus = QDBusConnection::sessionBus().interface();
    if (bus != nullptr && bus->isServiceRegistered(BusName)) {
        mAreOnBus = true;
        return QSystemTrayIcon::isSystemTrayAvailable();
    }
    // The toolkit asks the bus but once, so it is asked late; what it was told of the bus is then no more so.
    return !mAreOnBus && !mIsPatient && QSystemTrayIcon::isSystemTrayAvailable();
}

void TrayIcon::Follow()
{
    const bool isWanted = mDesk.Settings().hasTray;
    const bool isThere = isWanted && IsTrayThere();
    if (!isThere) {
        mIcon.reset();
    } else if (!mIcon) {
        Show();
    }
    mDesk.SetStaysWhenClosed(isThere);
    if (isWanted && !isThere && mIsPatient) {
        mTimer.start(std::chrono::seconds(Patience));
    } else {
        mTimer.stop();
    }
}

void TrayIcon::Show()
{
    mIcon = std::make_unique<QSystemTrayIcon>(ProgramIcon());
    mIcon->setContextMenu(&mMenu);
    mIcon->setToolTip(ProductName);
    QObject::connect(
        mIcon.get(), &QSystemTrayIcon::activated, &mMenu, [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger) {
                mRaise();
            }
        });
    mIcon->show();
}

void TrayIcon::Say(const std::string& text)
{
    if (IsShown()) {
        mIcon->showMessage(ProductName, ToQt(text));
    }
}

void TrayIcon::LosePatience()
{
    mIsPatient = false;
    Follow();
    if (!IsShown() && !IsAnyWindowShown()) {
        mRaise();
    }
}

}
