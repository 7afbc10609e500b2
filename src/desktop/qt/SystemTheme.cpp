#include "desktop/qt/SystemTheme.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace tempodial {

namespace {

constexpr auto PortalService = "org.freedesktop.portal.Desktop";
constexpr auto PortalPath = "/org/freedesktop/portal/desktop";
constexpr auto PortalSettings = "org.freedesktop.portal.Settings";
/// The answers of the setting that matter; others leave it to the program.
constexpr uint PrefersDark = 1;
constexpr uint PrefersLight = 2;

}

SystemTheme::SystemTheme(std::function<void(bool isDark)> tell)
    : mTell(std::move(tell))
{
    QObject::connect(qApp, &QApplication::applicationStateChanged, &mAsked, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) {
            Ask();
        }
    });
    Ask();
}

void SystemTheme::Ask()
{
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    auto call = QDBusMessage::createMethodCall(PortalService, PortalPath, PortalSettings, "Read");
    call.setAutoStartService(false);
    call << QString("org.freedesktop.appearance") << QString("color-scheme");
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), &mAsked);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &mAsked, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isError()) {
            return;
        }
        // The answer is a value in a value.
        auto value = reply.value().variant();
        if (value.canConvert<QDBusVariant>()) {
            value = value.value<QDBusVariant>().variant();
        }
        if (const auto scheme = value.toUInt(); scheme == PrefersDark || scheme == PrefersLight) {
            mTell(scheme == PrefersDark);
        }
    });
}

}
