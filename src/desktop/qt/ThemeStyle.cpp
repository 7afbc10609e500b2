#include "desktop/qt/ThemeStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace tempodial {

namespace {

/// Draws the outline of what is to be filled in or chosen, on the line that the toolkit draws.
void DrawOutline(const QStyleOption& option, QPainter& painter, bool isRound)
{
    const auto box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const auto hasFocus = (option.state & QStyle::State_HasFocus) != 0;
    painter.setPen(option.palette.color(hasFocus ? QPalette::Highlight : QPalette::PlaceholderText));
    if (isRound) {
        painter.drawEllipse(box);
    } else {
        painter.drawRect(box);
    }
    painter.restore();
}

}

void ThemeStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox) {
        DrawOutline(*option, *painter, false);
    }
}

void ThemeStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    if (element == PE_IndicatorBranch && (option->state & State_Selected) != 0) {
        auto selected = *option;
        selected.palette.setColor(QPalette::ButtonText, option->palette.color(QPalette::HighlightedText));
        selected.palette.setColor(QPalette::WindowText, option->palette.color(QPalette::HighlightedText));
        QProxyStyle::drawPrimitive(element, &selected, painter, widget);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isRound = element == PE_IndicatorRadioButton;
    if (isRound || element == PE_IndicatorCheckBox || element == PE_FrameLineEdit) {
        DrawOutline(*option, *painter, isRound);
    }
}

}
