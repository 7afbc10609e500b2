#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace tempodial {

/// The pictures on the program's own buttons, as paths in one colour: sharp at any scale and in any theme.
enum class Glyph { None, Back, Forward, Refresh, Search };

/// Draws one into a square.
void PaintGlyph(QPainter& painter, Glyph glyph, const QRectF& box, const QColor& colour);

}
