#include "desktop/qt/ProjectMark.h"

#include "desktop/qt/QtText.h"

#include <QGuiApplication>
#include <QPainter>

namespace tempodial {

void PaintProjectMark(QPainter& painter, const QRectF& box, const CardStyle& style)
{
    constexpr double Roundness = 0.22;
    const auto ink = ToQt(style.colours.mark);
    painter.setBrush(style.isHatched ? QBrush(Qt::NoBrush) : MarkBrush(style));
    if (style.pattern) {
        painter.setPen(QPen(ink, 1));
    } else {
        painter.setPen(style.isHatched ? QPen(ink, 1, Qt::DashLine) : QPen(Qt::NoPen));
    }
    const auto radius = box.height() * Roundness;
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    if (style.isStriped) {
        // Two stripes in the colour of its cards, apart from the edges by a fifth.
        constexpr double Part = 0.14;
        constexpr double Edge = 0.21;
        for (const auto top : { 0.36, 0.57 }) {
            painter.fillRect(QRectF(box.x() + box.width() * Edge, box.y() + box.height() * top,
                                 box.width() * (1 - 2 * Edge), box.height() * Part),
                ToQt(style.colours.fill));
        }
    }
}

QPixmap ProjectMarkPicture(int side, const CardStyle& style)
{
    const auto devicePixels = qGuiApp->devicePixelRatio();
    QPixmap picture(QSize(side, side) * devicePixels);
    picture.setDevicePixelRatio(devicePixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintProjectMark(painter, QRectF(0, 0, side, side), style);
    return picture;
}

}
