#include "desktop/qt/StackedBar.h"

#include <QPainter>
#include <QPainterPath>

namespace tempodial {

void StackedBar::Paint(QPainter& painter, const QRectF& box) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(box, box.height() / 2, box.height() / 2);
    painter.setPen(Qt::NoPen);
    painter.fillPath(outline, track);
    painter.setClipPath(outline);
    auto x = box.x();
    for (const auto& part : parts) {
        if (scale == 0 || part.minutes == 0) {
            continue;
        }
        const auto width = box.width() * static_cast<double>(part.minutes) / static_cast<double>(scale);
        // A hair between two parts, so that neighbours of like colours stay two.
        const QRectF place(x, box.y(), width > 2 ? width - 1 : width, box.height());
        if (!part.isOutline) {
            painter.fillRect(place, part.mark);
        }
        // A pattern may be too fine to be seen without its outline.
        if (part.isOutline || part.mark.style() != Qt::SolidPattern) {
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(part.mark.color(), 1));
            painter.drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
            painter.setPen(Qt::NoPen);
        }
        x += width;
    }
    painter.restore();
}

}
