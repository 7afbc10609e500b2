#include "desktop/qt/ThemeStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace tempodial {

void ThemeStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameLineEdit && (option->state & State_HasFocus) == 0) {
        painter->setPen(option->palette.color(QPalette::PlaceholderText));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }
    const bool isRadio = element == PE_IndicatorRadioButton;
    if (!isRadio && element != PE_IndicatorCheckBox) {
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(option->palette.color(QPalette::PlaceholderText));
    // On the line that the toolkit draws.
    const auto box = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (isRadio) {
        painter->drawEllipse(box);
    } else {
        painter->drawRect(box);
    }
    painter->restore();
}

}
