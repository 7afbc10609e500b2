#pragma once

#include "desktop/Colour.h"
#include "desktop/PixelBox.h"

#include <QColor>
#include <QRectF>
#include <QString>
#include <cstdint>
#include <string>

namespace tempodial {

/// What the product says, as the toolkit has it, and back.
inline QString ToQt(const std::string& text)
{
    return QString::fromStdString(text);
}

inline std::string FromQt(const QString& text)
{
    return text.toStdString();
}

inline QColor ToQt(const Colour& colour)
{
    return { colour.red, colour.green, colour.blue };
}

inline Colour FromQt(const QColor& colour)
{
    return { static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
        static_cast<std::uint8_t>(colour.blue()) };
}

inline QRectF ToQt(const PixelBox& box)
{
    return { box.left, box.top, box.width, box.height };
}

}
