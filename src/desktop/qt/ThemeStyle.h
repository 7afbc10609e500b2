#pragma once

#include <QProxyStyle>

namespace tempodial {

/// The style of all windows: the toolkit's own, with boxes to tick, to choose and to fill in that can be seen on
/// dark grounds, too.
class ThemeStyle final : public QProxyStyle
{
public:
    ThemeStyle()
        : QProxyStyle("Fusion")
    {
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;
    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
};

}
