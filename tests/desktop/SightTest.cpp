#include "desktop/Sight.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(SightTest, DistanceOf_KnownColours_IsThatOfOklab)
{
    EXPECT_NEAR(DistanceOf(Colour::Of(0xffffff), Colour::Of(0x000000), Sight::Normal), 100, 0.01);
    // Red has the lightness 0.628 with a 0.225 and b 0.126, green 0.866 with -0.234 and 0.179.
    EXPECT_NEAR(DistanceOf(Colour::Of(0xff0000), Colour::Of(0x00ff00), Sight::Normal), 52.0, 0.1);
    EXPECT_EQ(DistanceOf(Colour::Of(0x123456), Colour::Of(0x123456), Sight::Tritan), 0);
}

TEST(SightTest, DistanceOf_SightWithoutCones_IsLess)
{
    const auto distance = [](Sight sight) { return DistanceOf(Colour::Of(0xb00000), Colour::Of(0x507000), sight); };
    EXPECT_LT(distance(Sight::Deutan) * 10, distance(Sight::Normal));
    EXPECT_LT(DistanceOf(Colour::Of(0xff0000), Colour::Of(0x806000), Sight::Protan) * 2,
        DistanceOf(Colour::Of(0xff0000), Colour::Of(0x806000), Sight::Normal));
    EXPECT_LT(DistanceOf(Colour::Of(0x0060c0), Colour::Of(0x007070), Sight::Tritan) * 2,
        DistanceOf(Colour::Of(0x0060c0), Colour::Of(0x007070), Sight::Normal));
}

}
