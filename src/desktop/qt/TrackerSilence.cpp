#include "desktop/qt/TrackerSilence.h"

#include "session/TrackerFiles.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace tempodial {

TrackerSilence::TrackerSilence(Desk& desk, std::function<void(const std::string& text)> whenHidden)
    : mDesk(desk)
    , mWhenHidden(std::move(whenHidden))
{
    constexpr int FiveMinutes = 300000;
    QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this] { Look(); });
    mTimer.start(FiveMinutes);
}

void TrackerSilence::Look()
{
    if (!mDesk.Settings().notifies) {
        return;
    }
    const auto latest = TrackerFiles::Of(mDesk.Profile()).latest;
    const auto text = mNotice.Ask(latest ? std::optional(latest->when) : std::nullopt, mDesk.Now(), mDesk.Hours());
    if (!text) {
        return;
    }
    const auto windows = QApplication::topLevelWidgets();
    const bool isSeen = std::any_of(windows.begin(), windows.end(),
        [](const QWidget* window) { return window->isVisible() && !window->isMinimized(); });
    if (isSeen) {
        mDesk.Fail(*text);
    } else {
        mWhenHidden(*text);
    }
}

}
