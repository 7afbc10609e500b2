#include "review/HourlyRate.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

/// What that many minutes cost at a rate; "none" when it can't be read.
std::string Amount(const std::string& rate, std::int64_t minutes)
{
    const auto read = HourlyRate::Read(rate);
    return read ? read->Of(minutes).Text() : "none";
}

}

TEST(HourlyRateTest, Of_Minutes_IsExactAndRoundsHalfUp)
{
    EXPECT_EQ(Amount("95", 60), "95.00");
    EXPECT_EQ(Amount("95", 15), "23.75");
    EXPECT_EQ(Amount("82.50", 90), "123.75");
    EXPECT_EQ(Amount("0.1", 3), "0.01") << "half a hundredth";
    EXPECT_EQ(Amount("0.1", 2), "0.00");
    EXPECT_EQ(Amount("100", 1), "1.67");
    EXPECT_EQ(Amount("0.0001", 60 * 50), "0.01");
    EXPECT_EQ(Amount("0", 600), "0.00");
    EXPECT_EQ(Amount("95", 0), "0.00");
}

TEST(HourlyRateTest, Of_ManyMinutes_StaysExact)
{
    EXPECT_EQ(Amount("1000000", 5'000'000'000), "83333333333333.33");
    EXPECT_EQ(Amount("999999.9999", 60), "1000000.00");
}

TEST(HourlyRateTest, Read_OtherTexts_AreNone)
{
    for (const auto* text : { "", ".", "5.", ".5", "-1", "+1", "1,5", "1.23456", "1e3", " 1", "1 ", "1.-5", "1000000.1",
             "9999999999999999999999", "abc" }) {
        EXPECT_EQ(Amount(text, 60), "none") << text;
    }
    EXPECT_EQ(Amount("1000000.0000", 60), "1000000.00");
}

}
