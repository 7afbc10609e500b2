#include "desktop/ThemeColours.h"

#include "desktop/Contrast.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>

namespace tempodial {

namespace {

struct NamedTheme
{
    const char* name;
    const ThemeColours& colours;
};

class ThemeColoursTest : public testing::TestWithParam<NamedTheme>
{
protected:
    /// The least contrast of a colour over some grounds.
    static double Least(const Colour& colour, std::initializer_list<Colour> grounds)
    {
        auto least = 21.0;
        for (const auto& ground : grounds) {
            least = std::min(least, ContrastOf(colour, ground));
        }
        return least;
    }
    const ThemeColours& mColours = GetParam().colours;
};

}

INSTANTIATE_TEST_SUITE_P(Themes, ThemeColoursTest,
    testing::Values(NamedTheme { "Light", ThemeColours::Light() }, NamedTheme { "Dark", ThemeColours::Dark() },
        NamedTheme { "BlackOnWhite", ThemeColours::HighContrast(false) },
        NamedTheme { "WhiteOnBlack", ThemeColours::HighContrast(true) }),
    [](const auto& theme) { return theme.param.name; });

TEST_P(ThemeColoursTest, Texts_OnAllGrounds_CanBeRead)
{
    const auto& c = mColours;
    for (const auto& text : { c.text, c.quietText, c.faintText, c.link }) {
        EXPECT_GE(
            Least(text, { c.window, c.panel, c.paper, c.offHours, c.today, c.hover, c.card, c.band, c.track }), 4.5);
    }
    EXPECT_GE(ContrastOf(c.accentText, c.accent), 4.5);
    EXPECT_GE(ContrastOf(c.nowText, c.now), 4.5);
    EXPECT_GE(ContrastOf(c.badgeText, c.badge), 4.5);
}

TEST_P(ThemeColoursTest, UnassignedInk_OnPaperAndHatching_CanBeReadWell)
{
    EXPECT_GE(Least(mColours.unassignedInk, { mColours.paper, mColours.hatch }), 7);
}

TEST_P(ThemeColoursTest, Outlines_OnTheAgenda_CanBeSeen)
{
    const auto& c = mColours;
    for (const auto& drawn : { c.accent, c.now, c.unassignedMark }) {
        EXPECT_GE(Least(drawn, { c.paper, c.offHours, c.today }), 3);
    }
}

TEST(ThemeColoursPairTest, IsDark_Paper_TellsTheThemes)
{
    EXPECT_FALSE(IsDark(ThemeColours::Light().paper));
    EXPECT_TRUE(IsDark(ThemeColours::Dark().paper));
    EXPECT_TRUE(IsDark(ThemeColours::HighContrast(true).paper));
}

}
