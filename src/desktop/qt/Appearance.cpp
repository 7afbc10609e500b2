#include "desktop/qt/Appearance.h"

#include "desktop/Contrast.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ThemeStyle.h"

#include <QApplication>
#include <QPalette>
#include <QToolTip>
#include <utility>

namespace tempodial {

void Appearance::Apply(Choice choice)
{
    if (!mIsSystemDark) {
        mIsSystemDark = tempodial::IsDark(FromQt(QApplication::palette().color(QPalette::Window)));
        QApplication::setStyle(new ThemeStyle);
    }
    mIsHighContrast = choice == Choice::HighContrast || (choice == Choice::System && mIsSystemHighContrast);
    mIsDark = choice == Choice::Dark || (choice != Choice::Light && *mIsSystemDark);
    if (mIsHighContrast) {
        mColours = &ThemeColours::HighContrast(mIsDark);
    } else {
        mColours = mIsDark ? &ThemeColours::Dark() : &ThemeColours::Light();
    }
    SetPalette();
}

bool Appearance::SetSystemDark(bool isDark)
{
    const bool isOther = mIsSystemDark != isDark;
    mIsSystemDark = isDark;
    return isOther;
}

bool Appearance::SetSystemContrast(bool isHigh)
{
    return std::exchange(mIsSystemHighContrast, isHigh) != isHigh;
}

void Appearance::SetPalette() const
{
    const auto& colours = *mColours;
    QPalette palette;
    const auto set
        = [&palette](QPalette::ColorRole role, const Colour& colour) { palette.setColor(role, ToQt(colour)); };
    set(QPalette::Window, colours.panel);
    set(QPalette::WindowText, colours.text);
    set(QPalette::Base, colours.paper);
    set(QPalette::AlternateBase, colours.card);
    set(QPalette::Text, colours.text);
    set(QPalette::PlaceholderText, colours.faintText);
    set(QPalette::Button, colours.panel);
    set(QPalette::ButtonText, colours.text);
    set(QPalette::BrightText, colours.accentText);
    set(QPalette::Light, colours.hover);
    set(QPalette::Midlight, colours.hover);
    set(QPalette::Mid, colours.border);
    set(QPalette::Dark, colours.border);
    set(QPalette::Shadow, colours.border);
    set(QPalette::Highlight, colours.accent);
    set(QPalette::HighlightedText, colours.accentText);
    set(QPalette::Link, colours.link);
    set(QPalette::LinkVisited, colours.link);
    set(QPalette::ToolTipBase, colours.card);
    set(QPalette::ToolTipText, colours.text);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText }) {
        palette.setColor(QPalette::Disabled, role, ToQt(Mixed(colours.faintText, colours.panel, 0.7)));
    }
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

CardColours Appearance::CardOf(const std::optional<ToneUse>& use) const
{
    if (!use) {
        return { mColours->unassignedMark, mColours->paper, mColours->unassignedInk };
    }
    if (mIsHighContrast) {
        return { mColours->text, mColours->paper, mColours->text };
    }
    const auto& tone = Tones()[use->tone];
    return mIsDark ? tone.dark : tone.light;
}

}
