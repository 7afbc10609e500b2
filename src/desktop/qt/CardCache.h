#pragma once

#include "desktop/Tone.h"

#include <QBrush>
#include <QPixmap>
#include <cstddef>
#include <map>
#include <optional>
#include <tuple>

class QPainter;
class QRectF;

namespace tempodial {

/// How a card is drawn.
struct CardStyle
{
    CardColours colours;
    /// No project: a fine hatch in that colour, and no mark at the left edge.
    bool isHatched = false;
    Colour hatch;
    /// A dashed outline.
    bool isDashed = false;
    /// An outline all the same, and stripes apart from one another, as where all colours are alike.
    bool isOutlined = false;
    /// The mark is striped.
    bool isStriped = false;
    /// The place of the pattern that stands for the tone where there is only paper and ink.
    std::optional<std::size_t> pattern {};

    friend bool operator<(const CardStyle& one, const CardStyle& other);
};

/// What a mark is filled with: its colour, or its pattern.
QBrush MarkBrush(const CardStyle& style);

/// Draws cards of four kept corners and plain fills, without paths and clips, which take most of the time.
class CardCache
{
public:
    /// The pictures are for a screen of so many device pixels a pixel from now on; all of them go.
    void Use(double devicePixels);

    /// Draws a card.
    void Draw(QPainter& painter, const QRectF& box, const CardStyle& style);
    /// Draws what is too low for a card: a stripe of the mark's colour.
    void DrawStripe(QPainter& painter, const QRectF& box, const CardStyle& style);

private:
    struct Pictures
    {
        QPixmap corners;
        QBrush ground;
        QBrush mark;
    };

    const Pictures& Of(const CardStyle& style);
    static void DrawOutline(QPainter& painter, const QRectF& box, const CardStyle& style);
    Pictures Made(const CardStyle& style) const;

    double mDevicePixels = 1;
    std::map<CardStyle, Pictures> mPictures;
};

}
