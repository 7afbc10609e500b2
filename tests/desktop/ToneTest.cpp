#include "desktop/Tone.h"

#include "desktop/Contrast.h"
#include "desktop/Sight.h"
#include "desktop/ThemeColours.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tempodial {

namespace {

struct ThemedTones
{
    const char* name;
    CardColours Tone::*colours;
    const ThemeColours& theme;
};

class ToneTest : public testing::TestWithParam<ThemedTones>
{
protected:
    /// The least distance between the marks of the first tones, over all kinds of sight.
    static double LeastDistance(std::size_t count)
    {
        auto least = 100.0;
        for (std::size_t one = 0; one < count; ++one) {
            for (std::size_t other = 0; other < one; ++other) {
                for (const auto sight : AllSights) {
                    least = std::min(least, DistanceOf(Card(one).mark, Card(other).mark, sight));
                }
            }
        }
        return least;
    }
    static const CardColours& Card(std::size_t tone) { return Tones()[tone].*GetParam().colours; }
};

}

INSTANTIATE_TEST_SUITE_P(Themes, ToneTest,
    testing::Values(ThemedTones { "Light", &Tone::light, ThemeColours::Light() },
        ThemedTones { "Dark", &Tone::dark, ThemeColours::Dark() }),
    [](const auto& theme) { return theme.param.name; });

TEST_P(ToneTest, Ink_OnItsFill_CanBeRead)
{
    for (const auto& tone : Tones()) {
        const auto& card = tone.*GetParam().colours;
        EXPECT_GE(ContrastOf(card.ink, card.fill), 10.9) << tone.name;
        EXPECT_GE(ContrastOf(card.SecondInk(), card.fill), 7) << tone.name;
    }
}

TEST_P(ToneTest, Mark_OnPaperAndFill_CanBeSeen)
{
    for (const auto& tone : Tones()) {
        const auto& card = tone.*GetParam().colours;
        EXPECT_GE(ContrastOf(card.mark, GetParam().theme.paper), 3) << tone.name;
    }
}

TEST_P(ToneTest, Marks_FirstEight_StayApartInEachKindOfSight)
{
    EXPECT_GE(LeastDistance(8), 7);
}

TEST_P(ToneTest, Marks_All_StayApartInEachKindOfSight)
{
    EXPECT_GE(LeastDistance(ToneCount), 4.3);
}

TEST(TonesTest, Names_AreDifferent)
{
    std::set<std::string_view> names;
    for (const auto& tone : Tones()) {
        names.insert(tone.name);
    }
    EXPECT_EQ(names.size(), ToneCount);
}

}
