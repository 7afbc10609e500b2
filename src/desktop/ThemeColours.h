#pragma once

#include "desktop/Colour.h"

namespace tempodial {

/// The colours of a theme, but for those of the tones.
struct ThemeColours
{
    /// The grounds: of the window, of panels, of the agenda, of its hours outside of the work day, of today; of what
    /// the pointer is on, of a card in a panel, of the shown days in the small calendar, and of bars that aren't
    /// filled.
    Colour window, panel, paper, offHours, today, hover, card, band, track;
    /// Lines of the grid at full hours and between them, and borders.
    Colour hourLine, minuteLine, border;
    /// Texts by their weight, and those that lead somewhere.
    Colour text, quietText, faintText, link;
    /// What is selected or has the focus, and a text on that.
    Colour accent, accentText;
    /// The present moment, and a text on that.
    Colour now, nowText;
    /// What waits to be sorted out, and a text on that.
    Colour badge, badgeText;
    /// An activity without a project, which lies on paper: its outline, all of its text, and the lines of its hatching.
    Colour unassignedMark, unassignedInk, hatch;

    static const ThemeColours& Light();
    static const ThemeColours& Dark();
    /// Paper and ink only.
    static const ThemeColours& HighContrast(bool isDark);
};

}
