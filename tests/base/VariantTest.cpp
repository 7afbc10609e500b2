#include "base/Variant.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

#include <functional>

namespace tempodial {
namespace {

const Date Moment = Date::FromParts({ 2006, 10, 10, 9, 5, 0 });

void ExpectMismatch(const std::function<void()>& call)
{
    try {
        call();
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number(), 13);
    }
}

TEST(VariantTest, Nothing_IsTheEmptyValueOfEachType)
{
    const Variant nothing;
    EXPECT_TRUE(nothing.IsEmpty());
    EXPECT_EQ(nothing.ToText(), "");
    EXPECT_EQ(nothing.ToInt32(), 0);
    EXPECT_FALSE(nothing.ToBoolean());
    EXPECT_EQ(nothing.ToDate(), Date());
    EXPECT_EQ(nothing, Variant());
    EXPECT_NE(nothing, Variant("")) << "the empty text is a value";
}

TEST(VariantTest, ToText_EachType_IsTheTextOfTheValue)
{
    EXPECT_EQ(Variant("x").ToText(), "x");
    EXPECT_EQ(Variant(-1234).ToText(), "-1234");
    EXPECT_EQ(Variant(true).ToText(), "True");
    EXPECT_EQ(Variant(false).ToText(), "False");
    ExpectMismatch([] { Variant(Moment).ToText(); });
}

TEST(VariantTest, ToInt32_EachType_IsReadOrFails)
{
    EXPECT_EQ(Variant(" 12 ").ToInt32(), 12);
    EXPECT_EQ(Variant(7).ToInt32(), 7);
    EXPECT_EQ(Variant(true).ToInt32(), -1);
    EXPECT_EQ(Variant(false).ToInt32(), 0);
    ExpectMismatch([] { Variant("None").ToInt32(); });
    ExpectMismatch([] { Variant("").ToInt32(); });
    ExpectMismatch([] { Variant(Moment).ToInt32(); });
}

TEST(VariantTest, ToBoolean_EachType_IsReadOrFails)
{
    EXPECT_TRUE(Variant(true).ToBoolean());
    EXPECT_TRUE(Variant(2).ToBoolean());
    EXPECT_FALSE(Variant(0).ToBoolean());
    EXPECT_TRUE(Variant("True").ToBoolean());
    EXPECT_FALSE(Variant("false").ToBoolean());
    ExpectMismatch([] { Variant("").ToBoolean(); });
    ExpectMismatch([] { Variant("yes").ToBoolean(); });
    ExpectMismatch([] { Variant(Moment).ToBoolean(); });
}

TEST(VariantTest, ToDate_OnlyADate_IsOne)
{
    EXPECT_EQ(Variant(Moment).ToDate(), Moment);
    ExpectMismatch([] { Variant("10/10/2006").ToDate(); });
    ExpectMismatch([] { Variant(1).ToDate(); });
    ExpectMismatch([] { Variant(true).ToDate(); });
}

TEST(VariantTest, If_TypeAsked_GivesTheValueOrNull)
{
    const Variant text("x");
    ASSERT_NE(text.If<std::string>(), nullptr);
    EXPECT_EQ(*text.If<std::string>(), "x");
    EXPECT_EQ(text.If<bool>(), nullptr);
    EXPECT_EQ(Variant(true), Variant(true));
    EXPECT_NE(Variant(1), Variant(true));
}

}
}
