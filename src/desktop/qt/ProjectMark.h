#pragma once

#include "desktop/qt/CardCache.h"

#include <QPixmap>

namespace tempodial {

/// Draws what stands for a project beside its name: its colour, or its pattern where there is only paper and ink; a
/// dashed outline stands for none.
void PaintProjectMark(QPainter& painter, const QRectF& box, const CardStyle& style);

/// The same as a picture of so many pixels a side, for the screen that the program is on.
QPixmap ProjectMarkPicture(int side, const CardStyle& style);

}
