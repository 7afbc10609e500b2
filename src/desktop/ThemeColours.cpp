#include "desktop/ThemeColours.h"

#include "desktop/Contrast.h"

#include <initializer_list>

namespace tempodial {

namespace {

ThemeColours PaperAndInk(const Colour& paper, const Colour& ink)
{
    ThemeColours colours;
    for (auto* ground : { &colours.window, &colours.panel, &colours.paper, &colours.offHours, &colours.today,
             &colours.hover, &colours.card, &colours.band, &colours.track, &colours.accentText, &colours.nowText,
             &colours.badgeText, &colours.hatch, &colours.minuteLine }) {
        *ground = paper;
    }
    for (auto* drawn : { &colours.border, &colours.text, &colours.quietText, &colours.faintText, &colours.link,
             &colours.accent, &colours.now, &colours.badge, &colours.unassignedMark, &colours.unassignedInk }) {
        *drawn = ink;
    }
    // Lines of the agenda lie behind its texts.
    constexpr double Faint = 0.3;
    colours.hourLine = Mixed(ink, paper, Faint);
    return colours;
}

}

const ThemeColours& ThemeColours::Light()
{
    static const ThemeColours colours {
        .window = Colour::Of(0xf4f5f7),
        .panel = Colour::Of(0xffffff),
        .paper = Colour::Of(0xffffff),
        .offHours = Colour::Of(0xfafafb),
        .today = Colour::Of(0xf5f9ff),
        .hover = Colour::Of(0xeef1f5),
        .card = Colour::Of(0xf3f4f6),
        .band = Colour::Of(0xe8f0fc),
        .track = Colour::Of(0xedeff2),
        .hourLine = Colour::Of(0xe4e6ea),
        .minuteLine = Colour::Of(0xf1f2f4),
        .border = Colour::Of(0xdcdfe4),
        .text = Colour::Of(0x1b1f24),
        .quietText = Colour::Of(0x545d69),
        .faintText = Colour::Of(0x626b77),
        .link = Colour::Of(0x2560bc),
        .accent = Colour::Of(0x2d6fcd),
        .accentText = Colour::Of(0xffffff),
        .now = Colour::Of(0xd3302f),
        .nowText = Colour::Of(0xffffff),
        .badge = Colour::Of(0xfbefc9),
        .badgeText = Colour::Of(0x6b4e00),
        .unassignedMark = Colour::Of(0x6f7884),
        .unassignedInk = Colour::Of(0x434b55),
        .hatch = Colour::Of(0xe9ebed),
    };
    return colours;
}

const ThemeColours& ThemeColours::Dark()
{
    static const ThemeColours colours {
        .window = Colour::Of(0x15171a),
        .panel = Colour::Of(0x1c1f23),
        .paper = Colour::Of(0x191c20),
        .offHours = Colour::Of(0x16181c),
        .today = Colour::Of(0x1b2330),
        .hover = Colour::Of(0x272b31),
        .card = Colour::Of(0x23272d),
        .band = Colour::Of(0x242c38),
        .track = Colour::Of(0x25292f),
        .hourLine = Colour::Of(0x2c3138),
        .minuteLine = Colour::Of(0x22262b),
        .border = Colour::Of(0x31363d),
        .text = Colour::Of(0xe8eaed),
        .quietText = Colour::Of(0xa6afba),
        .faintText = Colour::Of(0x929ba7),
        .link = Colour::Of(0x8ab6f7),
        .accent = Colour::Of(0x70a6f5),
        .accentText = Colour::Of(0x0e1a2b),
        .now = Colour::Of(0xff6b62),
        .nowText = Colour::Of(0x2a0503),
        .badge = Colour::Of(0x4a3b12),
        .badgeText = Colour::Of(0xf2d27a),
        .unassignedMark = Colour::Of(0x8b95a1),
        .unassignedInk = Colour::Of(0xc0c7cf),
        .hatch = Colour::Of(0x2a2d32),
    };
    return colours;
}

const ThemeColours& ThemeColours::HighContrast(bool isDark)
{
    static const auto light = PaperAndInk(Colour::Of(0xffffff), Colour::Of(0x000000));
    static const auto dark = PaperAndInk(Colour::Of(0x000000), Colour::Of(0xffffff));
    return isDark ? dark : light;
}

}
