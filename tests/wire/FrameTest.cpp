#include "wire/FrameReader.h"
#include "wire/FrameWriter.h"
#include "wire/WireFailure.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace tempodial {

namespace {

/// What is behind the type of a frame.
FrameReader BodyOf(FrameWriter& writer)
{
    return FrameReader(writer.WithoutLength().substr(1));
}

}

TEST(FrameTest, Frame_HasItsLengthInFront)
{
    FrameWriter writer(FrameType::Call);
    writer.Number(1).Text("Save");
    const auto frame = writer.Frame();
    EXPECT_EQ(frame.size(), 4 + 1 + 8 + 4 + 4);
    EXPECT_EQ(frame.substr(0, 5), std::string("\x11\0\0\0C", 5));
}

TEST(FrameTest, Values_OfEachKind_ComeBack)
{
    const std::vector<WireValue> values { {}, WireValue::Null(), WireValue::Missing(), WireValue::Flag(true),
        WireValue::Flag(false), WireValue::Number(std::numeric_limits<std::int64_t>::min()), WireValue::Number(7),
        WireValue::Real(-0.5), WireValue::Moment(-86400), WireValue::Text(""), WireValue::Text(std::string("a\0b", 3)),
        WireValue::Object(12, "Items"),
        WireValue::List({ WireValue::Text("x"), WireValue::List({}), WireValue::Number(1) }) };
    FrameWriter writer(FrameType::Result);
    writer.Byte(200).Values(values).Number(-3);
    auto body = BodyOf(writer);
    EXPECT_EQ(body.Byte(), 200);
    EXPECT_EQ(body.Values(), values);
    EXPECT_EQ(body.Number(), -3);
}

TEST(FrameTest, Body_CutAnywhere_IsBroken)
{
    FrameWriter writer(FrameType::Result);
    writer.Value(WireValue::List({ WireValue::Text("abc"), WireValue::Object(1, "View"), WireValue::Number(5) }));
    const auto whole = writer.WithoutLength().substr(1);
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_THROW(FrameReader(whole.substr(0, size)).Value(), WireBroken) << size;
    }
    EXPECT_NO_THROW(FrameReader(whole).Value());
}

TEST(FrameTest, Value_ThatIsNone_IsBroken)
{
    EXPECT_THROW(FrameReader(std::string(1, '\x63')).Value(), WireBroken);
    EXPECT_THROW(FrameReader(std::string("\x09\xff\xff\xff\xff", 5)).Value(), WireBroken) << "more than there can be";
    std::string deep;
    for (int depth = 0; depth < 40; ++depth) {
        deep += std::string("\x09\x01\0\0\0", 5);
    }
    EXPECT_THROW(FrameReader(deep + '\0').Value(), WireBroken) << "too deep";
}

}
