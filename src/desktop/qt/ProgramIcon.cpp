#include "desktop/qt/ProgramIcon.h"

#include <QPainter>
#include <QPixmap>
#include <array>

namespace tempodial {

namespace {

/// The squares on which the picture is painted, in pixels.
constexpr std::array Sides { 16, 22, 32, 64 };

/// A rectangle of the picture, in sixteenths of its side.
struct Part
{
    double left, top, width, height;
    QRgb colour;
};

constexpr std::array Parts {
    Part { 1, 1, 14, 14, 0xffffffff },
    Part { 1, 1, 14, 4, 0xff2d6fcd },
    Part { 2.5, 6, 3, 4, 0xff2d6fcd },
    Part { 2.5, 10.5, 3, 3, 0xffb98a02 },
    Part { 6.5, 7, 3, 3, 0xff016242 },
    Part { 6.5, 10.5, 3, 3, 0xff2d6fcd },
    Part { 10.5, 6, 3, 2.5, 0xff803e00 },
    Part { 10.5, 9, 3, 4.5, 0xff016242 },
};

QPixmap Painted(int side)
{
    constexpr double Unit = 16;
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.scale(side / Unit, side / Unit);
    for (const auto& part : Parts) {
        painter.fillRect(QRectF(part.left, part.top, part.width, part.height), QColor::fromRgba(part.colour));
    }
    return pixmap;
}

}

QIcon ProgramIcon()
{
    QIcon painted;
    for (const auto side : Sides) {
        painted.addPixmap(Painted(side));
    }
    return QIcon::fromTheme("io.github.tempodial.Tempodial", painted);
}

}
