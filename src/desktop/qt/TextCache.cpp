#include "desktop/qt/TextCache.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tempodial {

void TextCache::Use(const QFont& font, qreal devicePixels)
{
    constexpr std::array sizes { 0.95, 0.88, 0.78 };
    for (std::size_t role = 0; role < sizes.size(); ++role) {
        mFonts[role] = font;
        mFonts[role].setPointSizeF(font.pointSizeF() * sizes[role]);
    }
    mFonts[static_cast<std::size_t>(TextRole::Bold)].setWeight(QFont::DemiBold);
    mDevicePixels = devicePixels;
    mPictures.clear();
}

double TextCache::WidthOf(TextRole role, const QString& text) const
{
    return QFontMetricsF(FontOf(role)).horizontalAdvance(text);
}

void TextCache::Draw(
    QPainter& painter, TextRole role, const QColor& ink, const QPointF& at, double width, const QString& text)
{
    constexpr double LeastWidth = 12;
    if (width < LeastWidth || text.isEmpty()) {
        return;
    }
    const Key key { text, role, static_cast<int>(width), ink.rgba() };
    auto* picture = mPictures.object(key);
    if (picture == nullptr) {
        auto made = std::make_unique<QPixmap>(Made(key));
        constexpr int BytesOfPixel = 4;
        constexpr int Kibibyte = 1024;
        const auto cost = made->width() * made->height() * BytesOfPixel / Kibibyte + 1;
        picture = made.get();
        mPictures.insert(key, made.release(), cost);
    }
    // A picture between two device pixels would be smeared.
    const auto snapped = [this](double place) { return std::round(place * mDevicePixels) / mDevicePixels; };
    painter.drawPixmap(QPointF(snapped(at.x()), snapped(at.y())), *picture);
}

QPixmap TextCache::Made(const Key& key) const
{
    const QFontMetricsF metrics(FontOf(key.role));
    const auto text = metrics.elidedText(key.text, Qt::ElideRight, key.width);
    const QSizeF size(std::ceil(metrics.horizontalAdvance(text)) + 2, std::ceil(metrics.height()));
    QPixmap picture((size * mDevicePixels).toSize().expandedTo({ 1, 1 }));
    picture.setDevicePixelRatio(mDevicePixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setFont(FontOf(key.role));
    painter.setPen(QColor::fromRgba(key.ink));
    painter.drawText(QPointF(0, metrics.ascent()), text);
    return picture;
}

}
