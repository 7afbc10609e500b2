#pragma once

#include <QBrush>
#include <QColor>
#include <QRectF>
#include <cstdint>
#include <vector>

class QPainter;

namespace tempodial {

/// A bar of parts that stand one behind the other, such as the projects of a day.
struct StackedBar
{
    struct Part
    {
        QBrush mark;
        std::int64_t minutes = 0;
        /// Drawn by its outline alone.
        bool isOutline = false;
    };

    std::vector<Part> parts;
    /// The minutes that the whole bar stands for.
    std::int64_t scale = 0;
    /// The ground, seen behind the parts.
    QColor track;

    void Paint(QPainter& painter, const QRectF& box) const;
};

}
