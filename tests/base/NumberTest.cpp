#include "base/Number.h"

#include "base/Failure.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>
#include <variant>

namespace tempodial {
namespace {

constexpr std::int32_t Mismatch = 13;
constexpr std::int32_t Overflow = 6;

struct Fails
{
    std::int32_t number;
    bool operator==(const Fails&) const = default;
};
using Outcome = std::variant<std::int32_t, Fails>;

std::ostream& operator<<(std::ostream& out, const Fails& fails)
{
    return out << "fails (" << fails.number << ")";
}

template <class Expression> Outcome OutcomeOf(Expression expression)
{
    try {
        return std::int32_t(expression());
    } catch (const Failure& failure) {
        return Fails { failure.Number() };
    }
}

TEST(NumberTest, ToInt_EachKindOfText_IsReadOrFails)
{
    const struct
    {
        std::string text;
        Outcome as32, as16;
    } rows[] = {
        { "480", 480, 480 },
        { " 480 ", 480, 480 },
        { "+480", 480, 480 },
        { "-5", -5, -5 },
        { "0", 0, 0 },
        { "007", 7, 7 },
        { "32767", 32767, 32767 },
        { "32768", 32768, Fails { Overflow } },
        { "-32768", -32768, -32768 },
        { "-32769", -32769, Fails { Overflow } },
        { "2147483647", 2147483647, Fails { Overflow } },
        { "2147483648", Fails { Overflow }, Fails { Overflow } },
        { "-2147483648", std::numeric_limits<std::int32_t>::min(), Fails { Overflow } },
        { "-2147483649", Fails { Overflow }, Fails { Overflow } },
        { "99999999999", Fails { Overflow }, Fails { Overflow } },
        { std::string(400, '9'), Fails { Overflow }, Fails { Overflow } },
        { "0.5", 0, 0 },
        { "2.5", 2, 2 },
        { "1.5", 2, 2 },
        { "3.5", 4, 4 },
        { "-1.5", -2, -2 },
        { "-0.5", 0, 0 },
        { "2.49999999999999999999", 2, 2 },
        { "2.50000000000000000001", 3, 3 },
        { "3600.5", 3600, 3600 },
        { "3601.5", 3602, 3602 },
        { "2147483647.5", Fails { Overflow }, Fails { Overflow } },
        { "1,234", 1234, 1234 },
        { "1,234,567.5", 1234568, Fails { Overflow } },
        { "9.", 9, 9 },
        { ".5", 0, 0 },
        { "11", 11, 11 },
        { "", Fails { Mismatch }, Fails { Mismatch } },
        { "  ", Fails { Mismatch }, Fails { Mismatch } },
        { "None", Fails { Mismatch }, Fails { Mismatch } },
        { "abc", Fails { Mismatch }, Fails { Mismatch } },
        { "12abc", Fails { Mismatch }, Fails { Mismatch } },
        { "0x10", Fails { Mismatch }, Fails { Mismatch } },
        { "True", Fails { Mismatch }, Fails { Mismatch } },
        { "-", Fails { Mismatch }, Fails { Mismatch } },
        { ".", Fails { Mismatch }, Fails { Mismatch } },
        { "1,23", Fails { Mismatch }, Fails { Mismatch } },
        { "1234,567", Fails { Mismatch }, Fails { Mismatch } },
        { ",123", Fails { Mismatch }, Fails { Mismatch } },
        { "1.2.3", Fails { Mismatch }, Fails { Mismatch } },
        { "12\t", Fails { Mismatch }, Fails { Mismatch } },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(OutcomeOf([&] { return ToInt32(row.text); }), row.as32) << row.text;
        EXPECT_EQ(OutcomeOf([&] { return ToInt16(row.text); }), row.as16) << row.text;
    }
}

TEST(NumberTest, MajorVersion_AnyText_IsTheLeadingDigitsOfTwoCharacters)
{
    EXPECT_EQ(MajorVersion("11.0.0.8010"), 11);
    EXPECT_EQ(MajorVersion("10.0.2627"), 10);
    EXPECT_EQ(MajorVersion("9.0"), 9);
    EXPECT_EQ(MajorVersion("8.5"), 8);
    EXPECT_EQ(MajorVersion("16.0.1"), 16);
    EXPECT_EQ(MajorVersion("160"), 16);
    EXPECT_EQ(MajorVersion("9"), 9);
    for (const auto* text : { "", "x", ".9", " 9", "v11" }) {
        EXPECT_EQ(OutcomeOf([&] { return MajorVersion(text); }), Outcome(Fails { Mismatch })) << text;
    }
}

TEST(NumberTest, RoundHalfEven_AnyValue_GoesToTheEvenNumberAtAHalf)
{
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(12.5), 12);
    EXPECT_EQ(RoundHalfEven(37.5), 38);
    EXPECT_EQ(RoundHalfEven(-1.5), -2);
    EXPECT_EQ(RoundHalfEven(23.0 / 40 * 100), 57);
    EXPECT_EQ(RoundHalfEven(3.0 / 40 * 100), 8);
    EXPECT_EQ(RoundHalfEven(2147483647.4), 2147483647);
    for (const double value : { 2147483647.5, -2147483649.0, std::numeric_limits<double>::infinity(),
             std::numeric_limits<double>::quiet_NaN() }) {
        EXPECT_EQ(OutcomeOf([&] { return RoundHalfEven(value); }), Outcome(Fails { Overflow })) << value;
    }
}

TEST(NumberTest, Padded_AnyNumber_HasAtLeastThatManyDigits)
{
    EXPECT_EQ(Padded(5, 2), "05");
    EXPECT_EQ(Padded(123, 2), "123");
    EXPECT_EQ(Padded(-5, 2), "-05");
    EXPECT_EQ(Padded(0, 5), "00000");
    EXPECT_EQ(Padded(4300, 5), "04300");
    EXPECT_EQ(Padded(123456, 5), "123456");
    EXPECT_EQ(Padded(0, 2), "00");
    EXPECT_EQ(Padded(std::numeric_limits<std::int32_t>::min(), 2), "-2147483648");
}

TEST(NumberTest, BooleanText_BothValues_AreTheSameInEveryLocale)
{
    EXPECT_EQ(BooleanText(true), "True");
    EXPECT_EQ(BooleanText(false), "False");
}

}
}
