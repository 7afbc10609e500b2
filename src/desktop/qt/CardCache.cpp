#include "desktop/qt/CardCache.h"

#include "desktop/qt/QtText.h"

#include <QPainter>
#include <QPainterPath>
#include <array>

namespace tempodial {

namespace {

constexpr double CardRadius = 4;
constexpr double MarkWidth = 4;
/// A pattern needs more room to be told.
constexpr double PatternWidth = 12;
/// The side of the picture that holds the corners.
constexpr double CornerSide = 16;

auto KeyOf(const Colour& colour)
{
    return std::tuple(colour.red, colour.green, colour.blue);
}

/// Lines that rise to the right, as a pattern without seams.
QBrush Hatching(const QColor& ground, const QColor& line, double distance, double devicePixels)
{
    const auto side = distance * 2;
    QPixmap picture((QSizeF(side, side) * devicePixels).toSize());
    picture.setDevicePixelRatio(devicePixels);
    picture.fill(ground);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, distance / 4));
    for (auto x = -side; x <= side; x += distance) {
        painter.drawLine(QPointF(x, side), QPointF(x + side, 0));
    }
    return { picture };
}

}

bool operator<(const CardStyle& one, const CardStyle& other)
{
    const auto key = [](const CardStyle& style) {
        return std::tuple(KeyOf(style.colours.mark), KeyOf(style.colours.fill), style.isHatched, style.isStriped,
            style.isDashed, style.isOutlined, KeyOf(style.hatch), style.pattern);
    };
    return key(one) < key(other);
}

QBrush MarkBrush(const CardStyle& style)
{
    static constexpr std::array<Qt::BrushStyle, ToneCount> Patterns { Qt::SolidPattern, Qt::FDiagPattern,
        Qt::Dense4Pattern, Qt::HorPattern, Qt::CrossPattern, Qt::Dense6Pattern, Qt::BDiagPattern, Qt::VerPattern,
        Qt::Dense2Pattern, Qt::DiagCrossPattern, Qt::Dense5Pattern, Qt::Dense3Pattern };
    return { ToQt(style.colours.mark), style.pattern ? Patterns[*style.pattern] : Qt::SolidPattern };
}

void CardCache::Use(double devicePixels)
{
    mDevicePixels = devicePixels;
    mPictures.clear();
}

const CardCache::Pictures& CardCache::Of(const CardStyle& style)
{
    const auto known = mPictures.find(style);
    return known != mPictures.end() ? known->second : mPictures.emplace(style, Made(style)).first->second;
}

CardCache::Pictures CardCache::Made(const CardStyle& style) const
{
    constexpr double HatchDistance = 4;
    constexpr double StripeDistance = 6;
    const auto fill = ToQt(style.colours.fill);
    const auto mark = ToQt(style.colours.mark);
    Pictures made;
    made.ground = style.isHatched ? Hatching(fill, ToQt(style.hatch), HatchDistance, mDevicePixels) : QBrush(fill);
    made.mark = style.isStriped ? Hatching(mark, fill, StripeDistance, mDevicePixels) : QBrush(mark);
    made.corners = QPixmap((QSizeF(CornerSide, CornerSide) * mDevicePixels).toSize());
    made.corners.setDevicePixelRatio(mDevicePixels);
    made.corners.fill(Qt::transparent);
    QPainter painter(&made.corners);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath path;
    path.addRoundedRect(QRectF(0, 0, CornerSide, CornerSide), CardRadius, CardRadius);
    painter.setClipPath(path);
    painter.fillRect(QRectF(0, 0, CornerSide, CornerSide), made.ground);
    if (!style.isHatched) {
        painter.fillRect(QRectF(0, 0, MarkWidth, CornerSide), made.mark);
    }
    return made;
}

void CardCache::Draw(QPainter& painter, const QRectF& box, const CardStyle& style)
{
    const auto& pictures = Of(style);
    const auto corner = [&](double x, double y, double fromX, double fromY) {
        painter.drawPixmap(QRectF(x, y, CardRadius, CardRadius), pictures.corners,
            QRectF(
                fromX * mDevicePixels, fromY * mDevicePixels, CardRadius * mDevicePixels, CardRadius * mDevicePixels));
    };
    const auto right = box.right() - CardRadius;
    const auto bottom = box.bottom() - CardRadius;
    const auto inner = box.width() - 2 * CardRadius;
    corner(box.x(), box.y(), 0, 0);
    corner(right, box.y(), CornerSide - CardRadius, 0);
    corner(box.x(), bottom, 0, CornerSide - CardRadius);
    corner(right, bottom, CornerSide - CardRadius, CornerSide - CardRadius);
    painter.fillRect(QRectF(box.x() + CardRadius, box.y(), inner, CardRadius), pictures.ground);
    painter.fillRect(QRectF(box.x() + CardRadius, bottom, inner, CardRadius), pictures.ground);
    const auto middle = box.height() - 2 * CardRadius;
    painter.fillRect(QRectF(box.x() + CardRadius, box.y() + CardRadius, inner + CardRadius, middle), pictures.ground);
    painter.fillRect(
        QRectF(box.x(), box.y() + CardRadius, CardRadius, middle), style.isHatched ? pictures.ground : pictures.mark);
    if (style.pattern) {
        painter.fillRect(QRectF(box.x(), box.y(), PatternWidth, box.height()), MarkBrush(style));
    }
    if (style.isDashed || style.isOutlined) {
        DrawOutline(painter, box, style);
    }
}

void CardCache::DrawOutline(QPainter& painter, const QRectF& box, const CardStyle& style)
{
    // Two pixels would leave the text of a low one no room.
    constexpr double LeastHeight = 20;
    const auto width = style.isOutlined && box.height() >= LeastHeight ? 2.0 : 1.0;
    QPen pen(ToQt(style.colours.mark), width);
    if (style.isDashed) {
        pen.setDashPattern({ 3, 3 });
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const auto half = width / 2;
    painter.drawRoundedRect(box.adjusted(half, half, -half, -half), CardRadius, CardRadius);
    painter.restore();
}

void CardCache::DrawStripe(QPainter& painter, const QRectF& box, const CardStyle& style)
{
    const auto& pictures = Of(style);
    const auto mark = style.pattern ? MarkBrush(style) : pictures.mark;
    painter.fillRect(box.adjusted(0, 0, 0, style.isOutlined ? -1 : 0), style.isHatched ? pictures.ground : mark);
    if (style.isHatched || style.pattern) {
        painter.setPen(QPen(ToQt(style.colours.mark), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

}
