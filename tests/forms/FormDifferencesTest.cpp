#include "forms/FormDifferences.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tempodial {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

FormSnapshot Shown(const std::string& title, const std::string& text)
{
    return { .number = 3,
        .className = "SmallForm",
        .title = title,
        .visible = true,
        .controls = { { .name = "Name", .kind = ControlKind::TextBox, .text = text } } };
}

}

TEST(FormDifferencesTest, Differences_Alike_AreNone)
{
    EXPECT_THAT(FormDifferences({ Shown("Small", "a") }, { Shown("Small", "a") }), IsEmpty());
}

TEST(FormDifferencesTest, Differences_OfAControl_TellBoth)
{
    EXPECT_THAT(
        FormDifferences({ Shown("Small", "a"), Shown("Other", "x") }, { Shown("Small", "b"), Shown("Other", "x") }),
        ElementsAre(AllOf(HasSubstr("the form 3 of the class \"SmallForm\" has \"Name\""), HasSubstr("text \"a\""),
            HasSubstr("its window shows \"Name\""), HasSubstr("text \"b\""))));
}

TEST(FormDifferencesTest, Differences_OfTitlesAndControls_AreTold)
{
    auto shorter = Shown("Small", "a");
    shorter.controls.clear();
    EXPECT_THAT(FormDifferences({ Shown("Small", "a") }, { Shown("Big", "a") }),
        ElementsAre(HasSubstr("is \"Small\" with 1 controls, and its window shows \"Big\"")));
    EXPECT_THAT(FormDifferences({ Shown("Small", "a") }, { shorter }), ElementsAre(HasSubstr("with 0")));
}

TEST(FormDifferencesTest, Differences_InNumber_AreTold)
{
    EXPECT_THAT(
        FormDifferences({ Shown("Small", "a") }, {}), ElementsAre("1 forms can be seen, and 0 windows show one"));
}

}
