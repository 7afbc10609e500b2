#include "desktop/qt/Glyphs.h"

#include <QPainter>
#include <QPainterPath>

namespace tempodial {

void PaintGlyph(QPainter& painter, Glyph glyph, const QRectF& box, const QColor& colour)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    // All are drawn on a square of 16.
    constexpr double Side = 16;
    painter.translate(box.topLeft());
    painter.scale(box.width() / Side, box.height() / Side);
    painter.setPen(QPen(colour, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    switch (glyph) {
    case Glyph::Back:
        painter.drawPolyline(QPolygonF({ { 9.5, 4 }, { 5.5, 8 }, { 9.5, 12 } }));
        break;
    case Glyph::Forward:
        painter.drawPolyline(QPolygonF({ { 6.5, 4 }, { 10.5, 8 }, { 6.5, 12 } }));
        break;
    case Glyph::Refresh:
        painter.drawArc(QRectF(2.5, 2.5, 11, 11), 40 * 16, 280 * 16);
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawPolygon(QPolygonF({ { 9, 5.8 }, { 14.6, 5.8 }, { 13.6, 0.6 } }));
        break;
    case Glyph::Search:
        painter.drawEllipse(QRectF(2.5, 2.5, 8, 8));
        painter.drawLine(QPointF(9.5, 9.5), QPointF(13.5, 13.5));
        break;
    case Glyph::None:
        break;
    }
    painter.restore();
}

}
