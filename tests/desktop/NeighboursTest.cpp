#include "desktop/Neighbours.h"

#include "desktop/StartedSession.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

class NeighboursTest : public testing::Test
{
protected:
    std::int64_t Added(const std::string& description, Date start) { return mSession.Added(description, start).number; }
    std::string Names(std::int64_t number, Side side)
    {
        std::string names;
        for (const auto& activity : NeighboursOf(mSession.Profile(), number, side)) {
            names += activity.description + " ";
        }
        return names;
    }
    static Date At(int month, int day, int hour) { return Date::FromParts({ 2006, month, day, hour, 0, 0 }); }

    StartedSession mSession;
};

}

TEST_F(NeighboursTest, BothSides_NearestFirst_AcrossDaysAndMonths)
{
    Added("far", At(2, 1, 9));
    Added("before", At(10, 9, 9));
    const auto own = Added("own", At(10, 10, 9));
    Added("behind", At(10, 10, 10));
    Added("later", At(10, 30, 9));
    EXPECT_EQ(Names(own, Side::Before), "before far ");
    EXPECT_EQ(Names(own, Side::Behind), "behind later ");
}

TEST_F(NeighboursTest, Many_NoMoreThanAMenuHolds)
{
    const auto own = Added("own", At(10, 10, 1));
    for (int hour = 2; hour < 16; ++hour) {
        Added("a", At(10, 10, hour));
    }
    EXPECT_EQ(NeighboursOf(mSession.Profile(), own, Side::Behind).size(), 10U);
    EXPECT_EQ(Names(own, Side::Before), "");
}

TEST_F(NeighboursTest, Unknown_HasNone)
{
    Added("other", At(10, 10, 9));
    EXPECT_EQ(Names(0, Side::Before), "");
    EXPECT_EQ(Names(0, Side::Behind), "");
}

}
