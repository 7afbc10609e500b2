#include "desktop/qt/FlatButton.h"

#include "desktop/qt/ProjectMark.h"
#include "desktop/qt/QtText.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

namespace tempodial {

namespace {

constexpr double ButtonMargin = 11;
constexpr double ButtonHeight = 30;
constexpr double GlyphSize = 16;
constexpr double MarkSize = 12;
constexpr double BetweenParts = 6;
constexpr double BadgeMargin = 10;

}

FlatButton::FlatButton(const Appearance& look, const QString& text, QWidget* parent)
    : QPushButton(text, parent)
    , mLook(look)
{
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void FlatButton::SetBeside(Extras extras)
{
    mExtras = std::move(extras);
    updateGeometry();
    update();
}

QFont FlatButton::TextFont() const
{
    auto bold = font();
    if (isChecked()) {
        bold.setWeight(QFont::DemiBold);
    }
    return bold;
}

QFont FlatButton::HintFont() const
{
    constexpr double HintSize = 0.8;
    auto small = font();
    small.setPointSizeF(small.pointSizeF() * HintSize);
    return small;
}

double FlatButton::HintWidth() const
{
    if (mExtras.hint.isEmpty()) {
        return 0;
    }
    return QFontMetricsF(HintFont()).horizontalAdvance(mExtras.hint) + (mExtras.isBadge ? 2 * BadgeMargin : 0);
}

QSize FlatButton::sizeHint() const
{
    auto bold = font();
    if (isCheckable()) {
        // As wide as it is when it is chosen.
        bold.setWeight(QFont::DemiBold);
    }
    const QFontMetricsF metrics(bold);
    const auto words = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    auto width = text().isEmpty() ? 0 : std::max<double>(words, metrics.size(Qt::TextShowMnemonic, text()).width());
    const auto add = [&width](double part) { width += part + (width > 0 ? BetweenParts : 0); };
    if (mExtras.glyph != Glyph::None) {
        add(GlyphSize);
    }
    if (mExtras.mark) {
        add(MarkSize);
    }
    if (!mExtras.hint.isEmpty()) {
        add(HintWidth());
    }
    width = std::max(width + 2 * ButtonMargin, ButtonHeight);
    return { static_cast<int>(std::ceil(width)), static_cast<int>(std::max(ButtonHeight, metrics.height() + 12)) };
}

void FlatButton::PaintGround(QPainter& painter) const
{
    constexpr double Radius = 6;
    const auto& colours = mLook.Colours();
    const bool isPart = isCheckable();
    auto ground = colours.panel;
    if (isEnabled() && (isDown() || underMouse())) {
        ground = colours.hover;
    } else if (isPart && !isChecked()) {
        ground = colours.card;
    }
    const auto box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    const bool hasOutline = !isPart || isChecked() || mLook.IsHighContrast();
    painter.setPen(
        hasOutline ? QPen(ToQt(colours.border), isChecked() && mLook.IsHighContrast() ? 3 : 1) : QPen(Qt::NoPen));
    painter.setBrush(ToQt(ground));
    painter.drawRoundedRect(box, Radius, Radius);
    if (hasFocus()) {
        painter.setPen(QPen(ToQt(colours.accent), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
    }
}

void FlatButton::paintEvent(QPaintEvent* /*event*/)
{
    const auto& colours = mLook.Colours();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintGround(painter);
    auto x = ButtonMargin;
    const auto middle = height() / 2.0;
    if (mExtras.glyph != Glyph::None) {
        const auto left = text().isEmpty() ? (width() - GlyphSize) / 2 : x;
        const auto ink = mExtras.glyph == Glyph::Refresh ? colours.accent : colours.text;
        PaintGlyph(painter, mExtras.glyph, { left, middle - GlyphSize / 2, GlyphSize, GlyphSize }, ToQt(ink));
        x += GlyphSize + BetweenParts;
    }
    if (mExtras.mark) {
        PaintProjectMark(painter, { x, middle - MarkSize / 2, MarkSize, MarkSize }, *mExtras.mark);
        x += MarkSize + BetweenParts;
    }
    painter.setFont(TextFont());
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    const auto right = width() - ButtonMargin;
    const bool isAlone = mExtras.glyph == Glyph::None && !mExtras.mark && mExtras.hint.isEmpty();
    // The letter that works a button together with Alt is underlined as the style has it.
    const bool showsKeys = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this) != 0;
    painter.drawText(QRectF(x, 0, right - x, height()),
        (isAlone ? Qt::AlignCenter : Qt::AlignVCenter | Qt::AlignLeft)
            | (showsKeys ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
        text());
    if (!mExtras.hint.isEmpty()) {
        QRectF place(right - HintWidth(), 0, HintWidth(), height());
        painter.setFont(HintFont());
        painter.setPen(ToQt(colours.faintText));
        if (mExtras.isBadge) {
            constexpr double BadgeHeight = 19;
            const auto badge = QRectF(place.x(), middle - BadgeHeight / 2, place.width(), BadgeHeight);
            painter.setPen(Qt::NoPen);
            painter.setBrush(ToQt(colours.badge));
            painter.drawRoundedRect(badge, BadgeHeight / 2, BadgeHeight / 2);
            painter.setPen(ToQt(colours.badgeText));
        }
        painter.drawText(place, Qt::AlignCenter, mExtras.hint);
    }
}

}
