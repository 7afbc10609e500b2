#include "desktop/ColourChoice.h"

#include "review/Activities.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(ColourChoiceTest, ColouredBy_UnderAQuarterHasAProject_IsByApplication)
{
    const auto shown = [](int assigned) {
        return std::vector<Activity> { ActivityOn(9, 0, assigned, "A"), ActivityOn(9, 500, 800, ""),
            ActivityOn(9, 800, 900, "No Project") };
    };
    EXPECT_EQ(ColouredBy(ColourChoice::Automatic, shown(0)), Coloured::Application);
    EXPECT_EQ(ColouredBy(ColourChoice::Automatic, shown(133)), Coloured::Application);
    EXPECT_EQ(ColouredBy(ColourChoice::Automatic, shown(134)), Coloured::Project);
}

TEST(ColourChoiceTest, ColouredBy_AQuarterOrNothing_IsByProject)
{
    EXPECT_EQ(ColouredBy(ColourChoice::Automatic, { ActivityOn(9, 0, 100, "A"), ActivityOn(9, 100, 400, "") }),
        Coloured::Project);
    EXPECT_EQ(ColouredBy(ColourChoice::Automatic, {}), Coloured::Project);
}

TEST(ColourChoiceTest, ColouredBy_ChosenByHand_StaysSo)
{
    EXPECT_EQ(ColouredBy(ColourChoice::Project, { ActivityOn(9, 0, 100, "") }), Coloured::Project);
    EXPECT_EQ(ColouredBy(ColourChoice::Application, { ActivityOn(9, 0, 100, "A") }), Coloured::Application);
}

}
