#pragma once

#include <QCache>
#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPixmap>
#include <QString>
#include <array>

class QPainter;

namespace tempodial {

/// The sizes in which the agenda writes: a heading, a line of a card, a label.
enum class TextRole { Bold, Usual, Small };

/// Lines of text as pictures, since drawing a text takes many times as long as drawing a picture of it.
class TextCache
{
public:
    /// The texts are in sizes of that font from now on; all pictures go.
    void Use(const QFont& font, qreal devicePixels);

    /// The device pixels a pixel that the pictures are for.
    qreal DevicePixels() const { return mDevicePixels; }
    const QFont& FontOf(TextRole role) const { return mFonts[static_cast<std::size_t>(role)]; }
    /// The height of a line.
    double HeightOf(TextRole role) const { return QFontMetricsF(FontOf(role)).height(); }
    /// The width of a text.
    double WidthOf(TextRole role, const QString& text) const;
    /// Draws a line of text, cut to a width, with its upper left corner at a point.
    void Draw(
        QPainter& painter, TextRole role, const QColor& ink, const QPointF& at, double width, const QString& text);

private:
    struct Key
    {
        QString text;
        TextRole role;
        int width;
        QRgb ink;

        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed = 0) noexcept
        {
            return qHashMulti(seed, key.text, static_cast<int>(key.role), key.width, key.ink);
        }
    };

    /// Kibibytes.
    static constexpr int MostMemory = 32 * 1024;

    QPixmap Made(const Key& key) const;

    std::array<QFont, 3> mFonts;
    qreal mDevicePixels = 1;
    QCache<Key, QPixmap> mPictures { MostMemory };
};

}
