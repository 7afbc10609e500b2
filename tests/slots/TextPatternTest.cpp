#include "slots/TextPattern.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tempodial {

namespace {

bool Matches(const std::string& pattern, const std::string& text)
{
    return TextPattern(pattern).Matches(text);
}

}

TEST(TextPatternTest, Matches_Words_AreAllOfTheText)
{
    EXPECT_TRUE(Matches("firefox", "Firefox"));
    EXPECT_FALSE(Matches("fire", "Firefox"));
    EXPECT_TRUE(Matches("*Riverside*", "Plan RIVERSIDE.odt"));
    EXPECT_TRUE(Matches("*", ""));
    EXPECT_FALSE(Matches("?", ""));
    EXPECT_TRUE(Matches("b?ro", "B\u00fcro"));
    EXPECT_TRUE(Matches("\u00fcber*", "\u00dcberblick"));
    EXPECT_TRUE(Matches("*a*b*c", "xaabxbc"));
    EXPECT_FALSE(Matches("*a*b*c", "xaabxbcd"));
    EXPECT_FALSE(Matches("", "a"));
}

TEST(TextPatternTest, Matches_Expression_HitsAnywhere)
{
    EXPECT_TRUE(Matches("/river(side)?/", "The Riverside plan"));
    EXPECT_FALSE(Matches("/^river/", "The Riverside plan"));
    EXPECT_TRUE(Matches("/[\u00e4\u00f6]l$/", "SPE\u00d6L"));
    EXPECT_TRUE(Matches("/\\d{3}/", "Room 101"));
    EXPECT_FALSE(Matches("/\\d{3}/", "Room 11"));
    EXPECT_TRUE(Matches("/", "/"));
}

TEST(TextPatternTest, Matches_HostileExpressionAndText_ComeToAnEnd)
{
    EXPECT_FALSE(Matches("/(a+)+b$/", std::string(10000, 'a')));
    EXPECT_FALSE(Matches("*a*a*a*a*a*b", std::string(10000, 'a')));
}

TEST(TextPatternTest, TextPattern_BadExpression_SaysWhy)
{
    for (const auto* pattern : { "/(/", "/[a/", "/a{2,1}/", "/a)|(b/", "/(a)\\1/" }) {
        EXPECT_THROW(TextPattern { pattern }, std::invalid_argument) << pattern;
    }
    EXPECT_THROW(TextPattern("/" + std::string(1001, 'a') + "/"), std::invalid_argument);
}

}
