#include "desktop/qt/WindowPlace.h"

#include "desktop/qt/QtText.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace tempodial {

namespace {

constexpr QSize UsualSize(1440, 900);
/// What the frame that a desktop draws takes of the screen.
constexpr QSize RoomOfFrame(8, 40);

/// A size as far as the screen has room for it; one in memory has any.
QSize InScreen(const QSize& size, const QScreen& screen)
{
    return QGuiApplication::platformName() == "offscreen" ? size : size.boundedTo(screen.availableSize() - RoomOfFrame);
}

/// The screen of a name; that of the window when there is none.
QScreen* ScreenNamed(const QString& name, const QWidget& window)
{
    const auto screens = QGuiApplication::screens();
    const auto found = std::find_if(
        screens.begin(), screens.end(), [&name](const QScreen* screen) { return screen->name() == name; });
    return found == screens.end() ? window.screen() : *found;
}

}

void PutWhereLeft(QWidget& window, const DesktopSettings& settings)
{
    auto* screen = ScreenNamed(ToQt(settings.screen), window);
    if (screen != window.screen()) {
        // Where windows can't choose their place, this does nothing.
        window.setScreen(screen);
        window.move(screen->availableGeometry().topLeft());
    }
    const QSize kept(static_cast<int>(settings.width), static_cast<int>(settings.height));
    window.resize(InScreen(settings.width == 0 ? UsualSize : kept, *screen));
    if (settings.isMaximised) {
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    }
}

void NotePlace(const QWidget& window, DesktopSettings& settings)
{
    settings.isMaximised = window.isMaximized();
    settings.screen = FromQt(window.screen()->name());
    // One that was maximised from the start hasn't had another size.
    const auto size = settings.isMaximised ? window.normalGeometry().size() : window.size();
    if (!size.isEmpty()) {
        settings.width = size.width();
        settings.height = size.height();
    }
}

}
