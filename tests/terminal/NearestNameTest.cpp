#include "terminal/NearestName.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

const std::vector<std::string> Names { "list", "projects", "report", "problem-report", "--from", "Größe" };

}

TEST(NearestNameTest, NearestName_SlipsOfTheFingers_AreFound)
{
    EXPECT_EQ(NearestName("lits", Names), "list");
    EXPECT_EQ(NearestName("lst", Names), "list");
    EXPECT_EQ(NearestName("lisst", Names), "list");
    EXPECT_EQ(NearestName("kist", Names), "list");
    EXPECT_EQ(NearestName("LIST", Names), "list");
    EXPECT_EQ(NearestName("reprot", Names), "report");
    EXPECT_EQ(NearestName("--form", Names), "--from");
    EXPECT_EQ(NearestName("-from", Names), "--from");
    EXPECT_EQ(NearestName("größa", Names), "Größe");
}

TEST(NearestNameTest, NearestName_NothingNear_IsEmpty)
{
    for (const auto& typed : { std::string(), std::string("-"), std::string("x"), std::string("set"),
             std::string("nothing"), std::string("remote"), std::string(100'000, 'x') }) {
        EXPECT_EQ(NearestName(typed, Names), "") << typed.substr(0, 20);
    }
    EXPECT_EQ(NearestName("list", {}), "");
}

TEST(NearestNameTest, NearestName_SeveralNear_GivesTheNearest)
{
    EXPECT_EQ(NearestName("reporting", { "reports", "reportings" }), "reportings");
}

TEST(NearestNameTest, NearestAdvice_IsBehindTheName)
{
    EXPECT_EQ(NearestAdvice("lits", Names, "see the help"), ": did you mean \"list\"? Else see the help");
    EXPECT_EQ(NearestAdvice("nothing", Names, "see the help"), ": see the help");
}

}
