#pragma once

#include "desktop/qt/Appearance.h"
#include "desktop/qt/CardCache.h"
#include "desktop/qt/Glyphs.h"

#include <QPushButton>
#include <optional>

namespace tempodial {

/// A button with a thin outline, as the program's own bars have it: with a picture, the mark of a project, or a small
/// word behind its text. A checkable one is part of a row of which one is chosen.
class FlatButton final : public QPushButton
{
public:
    /// What stands beside the text.
    struct Extras
    {
        Glyph glyph = Glyph::None;
        /// The project whose mark it is.
        std::optional<CardStyle> mark;
        /// A small word behind the text, such as the key that does the same.
        QString hint;
        /// True when that word lies on a ground of its own, since it asks for something.
        bool isBadge = false;
    };

    FlatButton(const Appearance& look, const QString& text, QWidget* parent);

    const Extras& Beside() const { return mExtras; }
    void SetBeside(Extras extras);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont TextFont() const;
    QFont HintFont() const;
    double HintWidth() const;
    void PaintGround(QPainter& painter) const;

    const Appearance& mLook;
    Extras mExtras;
};

}
