#include "desktop/qt/WindowRoom.h"

#include <QLayout>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace tempodial {

void GiveRoom(QWidget& window)
{
    auto& layout = *window.layout();
    layout.activate();
    const auto screen = window.screen()->availableSize();
    const auto isSized = window.testAttribute(Qt::WA_Resized);
    const auto wanted = isSized ? window.size() : layout.totalSizeHint();
    const auto width = std::min(std::max(wanted.width(), layout.totalMinimumSize().width()), screen.width());
    const auto least
        = layout.hasHeightForWidth() ? layout.totalHeightForWidth(width) : layout.totalMinimumSize().height();
    window.resize(width, std::min(std::max(wanted.height(), least), screen.height()));
}

double LetterScale(const QWidget& widget)
{
    constexpr double UsualHeight = 19;
    return std::max(1.0, QFontMetricsF(widget.font()).height() / UsualHeight);
}

}
