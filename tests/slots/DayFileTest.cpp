#include "slots/DayFile.h"

#include "base/Ascii.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

using Lines = std::vector<std::string>;

ActivitySlot WrittenSlot(
    int number, bool continues, const std::string& text, Lines details = {}, bool tellsAlone = false)
{
    ActivitySlot slot;
    slot.start = number * SlotSeconds;
    slot.end = slot.start + SlotSeconds;
    slot.continues = continues;
    slot.words = { "A", 0, text, "" };
    slot.details = std::move(details);
    slot.tellsDetailsAlone = tellsAlone;
    return slot;
}

/// The lines in short: where they end in slots, what they are, and their text.
Lines Short(const Lines& lines)
{
    Lines told;
    for (const auto& line : lines) {
        const auto node = [&line](const std::string& name) {
            const auto at = line.find("<" + name + ">") + name.size() + 2;
            return line.substr(at, line.find('<', at) - at);
        };
        const bool isDetail = line.find("<Detail>") != std::string::npos;
        const bool continues = line.find("<Continuation>") != std::string::npos;
        told.push_back(std::to_string(std::stoi(node("EndTime")) / 300)
            + (isDetail         ? " - "
                    : continues ? " + "
                                : " ")
            + node("WindowText"));
    }
    return told;
}

}

TEST(DayFileTest, Heading_Zones_StandAsInMoments)
{
    const auto day = Date::FromYearMonthDay(2026, 11, 21);
    EXPECT_EQ(DayFile::Heading(day, 60), "Tempodial tracker 1, 2026-11-21, +01:00");
    EXPECT_EQ(DayFile::Heading(day, -210), "Tempodial tracker 1, 2026-11-21, -03:30");
}

TEST(DayFileTest, Add_Details_StandBeforeTheContinuationAndBehindTheOwnWords)
{
    DayFile file;
    file.Add(WrittenSlot(0, false, "a", { "x" }));
    file.Add(WrittenSlot(1, true, "a", { "y" }));
    file.Add(WrittenSlot(2, true, "a"));
    file.Add(WrittenSlot(3, false, "b"));
    EXPECT_EQ(Short(file.TakeLines()), (Lines { "1 a", "1 - a", "1 - x", "1 - y", "2 + a", "3 + a", "4 b" }));
}

TEST(DayFileTest, Add_SingleSlot_TellsItsDetailsOnlyWhenItSaysLittle)
{
    DayFile file;
    file.Add(WrittenSlot(0, false, "a", { "x" }));
    file.Add(WrittenSlot(1, false, "b", { "y" }, true));
    file.Add(WrittenSlot(2, false, "c", { "z" }, true));
    EXPECT_EQ(Short(file.TakeLines()), (Lines { "1 a", "2 b", "2 - b", "2 - y", "3 c" }));
}

TEST(DayFileTest, Add_FirstLineAndBehindAGap_AreNew)
{
    DayFile file;
    file.Add(WrittenSlot(4, true, "a"));
    file.Add(WrittenSlot(5, true, "a"));
    file.Add(WrittenSlot(7, true, "a"));
    EXPECT_EQ(Short(file.TakeLines()), (Lines { "5 a", "6 + a", "8 a" }));
}

TEST(DayFileTest, Add_EndsNoLaterThanTheLast_IsNotWritten)
{
    DayFile file(3 * SlotSeconds);
    EXPECT_FALSE(file.Add(WrittenSlot(1, false, "a")));
    EXPECT_FALSE(file.Add(WrittenSlot(2, false, "a")));
    EXPECT_TRUE(file.Add(WrittenSlot(3, true, "a")));
    EXPECT_EQ(Short(file.TakeLines()), (Lines { "4 a" }));
    EXPECT_EQ(file.LastEnd(), 4 * SlotSeconds);
}

TEST(DayFileTest, AddExact_AnyLength_IsOneLine)
{
    DayFile file;
    EXPECT_TRUE(file.AddExact(100, 90000, { "T", 0, "call", "P" }));
    EXPECT_TRUE(file.AddExact(200, 90000, { "T", 0, "other", "" }));
    EXPECT_FALSE(file.AddExact(200, 89999, { "T", 0, "late", "" }));
    EXPECT_FALSE(file.AddExact(90000, 90000, { "T", 0, "none", "" }));
    EXPECT_EQ(file.TakeLines(),
        (Lines { "<slot><StartTime>100</StartTime><EndTime>90000</EndTime><AppType>0</AppType><AppName>T</AppName>"
                 "<WindowText>call</WindowText><Project>P</Project></slot>",
            "<slot><StartTime>200</StartTime><EndTime>90000</EndTime><AppType>0</AppType><AppName>T</AppName>"
            "<WindowText>other</WindowText></slot>" }));
}

TEST(DayFileTest, TakeLines_AnyText_IsAscii)
{
    DayFile file;
    file.Add(WrittenSlot(0, false, "\u202e\u58f2\u4e0a \U0001F600 <&>" + std::string(10000, 'x')));
    for (const auto& line : file.TakeLines()) {
        EXPECT_TRUE(IsAscii(line)) << line;
        EXPECT_LT(line.size(), 2000U);
    }
}

}
