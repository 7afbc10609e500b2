#include "desktop/qt/SystemTheme.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <chrono>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

constexpr auto PortalService = "org.freedesktop.portal.Desktop";
constexpr auto PortalPath = "/org/freedesktop/portal/desktop";
constexpr auto PortalSettings = "org.freedesktop.portal.Settings";
constexpr auto AppearanceSettings = "org.freedesktop.appearance";
/// The answers of the colour scheme that matter; others leave it to the program.
constexpr uint PrefersDark = 1;
constexpr uint PrefersLight = 2;
/// The answer of the contrast that wants more of it; others want the usual.
constexpr uint PrefersContrast = 1;
constexpr std::chrono::milliseconds Moment(50);

}

SystemTheme::SystemTheme(Wishes wishes)
    : mWishes(std::move(wishes))
{
    QObject::connect(qApp, &QApplication::applicationStateChanged, &mAsked, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) {
            Ask();
        }
    });
    mSoon.setSingleShot(true);
    mSoon.setInterval(Moment);
    QObject::connect(&mSoon, &QTimer::timeout, &mAsked, [this] { Ask(); });
    // The bus reaches slots alone, and one that a timer has will do: what has changed is asked for.
    QDBusConnection::sessionBus().connect(
        PortalService, PortalPath, PortalSettings, "SettingChanged", &mSoon, SLOT(start()));
    Ask();
}

void SystemTheme::Ask()
{
    Ask(ColourScheme);
    Ask(Contrast);
}

void SystemTheme::Ask(const char* setting)
{
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    auto call = QDBusMessage::createMethodCall(PortalService, PortalPath, PortalSettings, "Read");
    call.setAutoStartService(false);
    call << QString(AppearanceSettings) << QString(setting);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), &mAsked);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &mAsked, [this, watcher, setting] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (!reply.isError()) {
            Take(setting, reply.value().variant());
        }
    });
}

void SystemTheme::Take(const char* setting, const QVariant& value) const
{
    // The answer is a value in a value.
    const auto number = (value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value).toUInt();
    if (setting == std::string_view(Contrast)) {
        mWishes.contrast(number == PrefersContrast);
    } else if (number == PrefersDark || number == PrefersLight) {
        mWishes.dark(number == PrefersDark);
    }
}

}
