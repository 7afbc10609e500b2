#pragma once

#include "desktop/ColourBook.h"
#include "desktop/DesktopSettings.h"
#include "desktop/ThemeColours.h"
#include "desktop/Tone.h"

#include <optional>

namespace tempodial {

/// How the program looks: the style, and the colours of the theme that is on.
class Appearance
{
public:
    using Choice = DesktopSettings::Appearance;

    /// Gives the application its style and the palette of a theme. The system's own is dark when the palette is with
    /// which the application began.
    void Apply(Choice choice);
    /// Says that the desktop is dark, or light; true when it was taken for the other.
    bool SetSystemDark(bool isDark);
    /// Says that the desktop wants high contrast, or not; true when it was taken for the other.
    bool SetSystemContrast(bool isHigh);

    const ThemeColours& Colours() const { return *mColours; }
    bool IsDark() const { return mIsDark; }
    /// True when there is only paper and ink.
    bool IsHighContrast() const { return mIsHighContrast; }
    /// The colours of an activity of that tone; without a tone those of one that has no project.
    CardColours CardOf(const std::optional<ToneUse>& use) const;

private:
    void SetPalette() const;

    /// Whether the desktop is dark; nothing before it was looked at.
    std::optional<bool> mIsSystemDark;
    bool mIsSystemHighContrast = false;
    const ThemeColours* mColours = &ThemeColours::Light();
    bool mIsDark = false;
    bool mIsHighContrast = false;
};

}
