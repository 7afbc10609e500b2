#include "desktop/Contrast.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(ContrastTest, ContrastOf_KnownColours_IsThatOfTheGuidelines)
{
    EXPECT_NEAR(ContrastOf(Colour::Of(0xffffff), Colour::Of(0x000000)), 21, 1e-9);
    EXPECT_NEAR(ContrastOf(Colour::Of(0x777777), Colour::Of(0xffffff)), 4.48, 0.01);
    EXPECT_NEAR(ContrastOf(Colour::Of(0xffffff), Colour::Of(0x0000ff)), 8.59, 0.01);
    EXPECT_EQ(ContrastOf(Colour::Of(0x123456), Colour::Of(0x123456)), 1);
}

TEST(ContrastTest, Luminance_Channels_WeighAsTheEyeDoes)
{
    EXPECT_NEAR(Luminance(Colour::Of(0xff0000)), 0.2126, 1e-9);
    EXPECT_NEAR(Luminance(Colour::Of(0x00ff00)), 0.7152, 1e-9);
    EXPECT_NEAR(Luminance(Colour::Of(0x0000ff)), 0.0722, 1e-9);
    EXPECT_NEAR(Luminance(Colour::Of(0x0a0a0a)), 10 / 255.0 / 12.92, 1e-9);
}

TEST(ContrastTest, Mixed_Opacity_LiesBetweenBoth)
{
    const auto over = Colour::Of(0xff8000);
    const auto under = Colour::Of(0x0000ff);
    EXPECT_EQ(Mixed(over, under, 1), over);
    EXPECT_EQ(Mixed(over, under, 0), under);
    EXPECT_EQ(Mixed(over, under, 0.25), Colour::Of(0x4020bf));
}

TEST(ContrastTest, IsDark_Ground_IsThatOnWhichWhiteIsBetterRead)
{
    EXPECT_TRUE(IsDark(Colour::Of(0x191c20)));
    EXPECT_TRUE(IsDark(Colour::Of(0x606060)));
    EXPECT_FALSE(IsDark(Colour::Of(0x909090)));
    EXPECT_FALSE(IsDark(Colour::Of(0xffffff)));
}

}
