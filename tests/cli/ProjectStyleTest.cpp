#include "cli/ProjectStyle.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <set>

namespace tempodial {

namespace {

/// How light a colour of the palette's cube is, from 0 to 1.
double LightOf(int color)
{
    constexpr std::array<int, 6> Levels { 0, 95, 135, 175, 215, 255 };
    constexpr std::array<double, 3> Weights { 0.0722, 0.7152, 0.2126 };
    double light = 0;
    int index = color - 16;
    for (const double weight : Weights) {
        const auto level = Levels.at(static_cast<std::size_t>(index % 6)) / 255.0;
        light += weight * (level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4));
        index /= 6;
    }
    return light;
}

}

TEST(ProjectStyleTest, ProjectStyle_NameInAnyCase_HasItsColor)
{
    EXPECT_EQ(ProjectStyle("Riverside").parameters, ProjectStyle("rIVERSIDE").parameters);
    EXPECT_EQ(ProjectStyle("Riverside").parameters, "38;5;130") << "it is the same at any time";
}

TEST(ProjectStyleTest, ProjectStyle_NoProject_IsDim)
{
    for (const auto* name : { "", "No Project", "no project" }) {
        EXPECT_EQ(ProjectStyle(name).parameters, "2");
    }
}

TEST(ProjectStyleTest, ProjectStyle_AnyName_CanBeReadOnWhiteAndOnBlack)
{
    std::set<std::string> colors;
    for (int i = 0; i < 1000; ++i) {
        const auto style = ProjectStyle("project " + std::to_string(i)).parameters;
        ASSERT_TRUE(style.starts_with("38;5;")) << style;
        const auto light = LightOf(std::stoi(style.substr(5)));
        EXPECT_GT(1.05 / (light + 0.05), 3.5) << style << " on white";
        EXPECT_GT((light + 0.05) / 0.05, 3.5) << style << " on black";
        colors.insert(style);
    }
    EXPECT_GE(colors.size(), 10U);
}

}
