#include "base/UnixTime.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

namespace tempodial {

TEST(UnixTimeTest, UnixTimeOf_LocalMoment_GoesByTheTimeZone)
{
    const auto start = Date::FromYearMonthDay(1970, 1, 1);
    EXPECT_EQ(start.Seconds(), SecondsTo1970);
    for (const auto& [zone, expected] :
        { std::pair("UTC0", 0), std::pair("TST-5:30", -19800), std::pair("TST5", 18000) }) {
        ::setenv("TZ", zone, 1);
        EXPECT_EQ(UnixTimeOf(start), expected) << zone;
    }
    ::setenv("TZ", "UTC", 1);
    ::tzset();
}

}
