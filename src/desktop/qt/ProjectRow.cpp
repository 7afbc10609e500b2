#include "desktop/qt/ProjectRow.h"

#include "desktop/DesktopStrings.h"
#include "desktop/qt/ProjectMark.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ShownLine.h"

#include <QPainter>
#include <algorithm>

namespace tempodial {

namespace {

constexpr double RowMargin = 8;
constexpr double MarkSide = 14;
constexpr double BarThickness = 4;
constexpr double NameIndent = RowMargin + MarkSide + 8;

}

ProjectRow::ProjectRow(const Appearance& look, QWidget* parent)
    : QPushButton(parent)
    , mLook(look)
{
    setCheckable(true);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ProjectRow::Show(const Content& content)
{
    mContent = content;
    setText(content.name);
    setAccessibleName(content.name);
    const auto length = ToQt(LengthText(content.minutes));
    setAccessibleDescription(content.link.isEmpty() ? length : length + ", " + content.link);
    setToolTip(PlainToolTip(content.name));
    updateGeometry();
    update();
}

double ProjectRow::LineHeight() const
{
    return QFontMetricsF(font()).height() + 4;
}

QSize ProjectRow::sizeHint() const
{
    const auto below = mContent.link.isEmpty() ? BarThickness + RowMargin : LineHeight() + 2 * RowMargin;
    // A name may be cut, the link is read as a whole.
    const auto link = mContent.link.isEmpty() ? 0.0 : QFontMetricsF(font()).horizontalAdvance(mContent.link);
    return { static_cast<int>(NameIndent + link + RowMargin), static_cast<int>(LineHeight() + below + 3) };
}

void ProjectRow::paintEvent(QPaintEvent* /*event*/)
{
    const auto& colours = mLook.Colours();
    const bool isCard = !mContent.link.isEmpty();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto box = QRectF(rect());
    if (isCard || isChecked() || underMouse()) {
        const auto ground = isChecked() ? colours.band : colours.hover;
        painter.setPen(mLook.IsHighContrast() ? QPen(ToQt(colours.border), isChecked() ? 2 : 1) : QPen(Qt::NoPen));
        painter.setBrush(ToQt(isCard && !isChecked() && !underMouse() ? colours.card : ground));
        painter.drawRoundedRect(box.adjusted(1, 0, -1, 0), 8, 8);
    }
    if (hasFocus()) {
        painter.setPen(QPen(ToQt(colours.accent), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box.adjusted(2, 1, -2, -1), 7, 7);
    }
    const auto top = isCard ? RowMargin : 1.0;
    const auto line = LineHeight();
    PaintProjectMark(painter, { RowMargin, top + (line - MarkSide) / 2, MarkSide, MarkSide }, mContent.style);
    const QRectF place(NameIndent, top, box.width() - NameIndent - RowMargin, line);
    auto bold = font();
    if (isCard) {
        bold.setWeight(QFont::DemiBold);
    }
    painter.setFont(bold);
    painter.setPen(ToQt(colours.text));
    const auto length = ToQt(LengthText(mContent.minutes));
    const auto room = place.width() - QFontMetricsF(bold).horizontalAdvance(length) - RowMargin;
    painter.drawText(place, Qt::AlignVCenter, QFontMetricsF(bold).elidedText(mContent.name, Qt::ElideRight, room));
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, length);
    if (isCard) {
        painter.setFont(font());
        painter.setPen(ToQt(colours.link));
        painter.drawText(place.translated(0, line), Qt::AlignVCenter, mContent.link);
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(ToQt(colours.track));
    const QRectF track(place.x(), top + line, place.width(), BarThickness);
    painter.drawRoundedRect(track, 2, 2);
    painter.setBrush(ToQt(mContent.style.colours.mark));
    const auto part
        = mContent.most == 0 ? 0.0 : static_cast<double>(mContent.minutes) / static_cast<double>(mContent.most);
    painter.drawRoundedRect(
        QRectF(track.x(), track.y(), std::max(track.width() * part, BarThickness), BarThickness), 2, 2);
}

}
