#include "sources/CalendarPieces.h"

#include "base/Utf8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace tempodial {

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr auto Head = "BEGIN:VCALENDAR\nX-WR-CALNAME:ann\nBEGIN:VTIMEZONE\nTZID:x\nEND:VTIMEZONE\n";

class CalendarPiecesTest : public testing::Test
{
protected:
    std::vector<std::string> Pieces(const std::string& text)
    {
        std::istringstream stream(text);
        CalendarPieces pieces(stream, mSkipped);
        std::vector<std::string> all;
        while (pieces.Next()) {
            all.push_back(pieces.Piece());
        }
        mHasCalendar = pieces.HasCalendar();
        return all;
    }
    static std::string Event(const std::string& lines) { return "BEGIN:VEVENT\n" + lines + "\nEND:VEVENT\n"; }

    Skipped mSkipped;
    bool mHasCalendar = false;
};

}

TEST_F(CalendarPiecesTest, Next_SmallCalendar_IsOnePieceWithoutOtherParts)
{
    const auto pieces = Pieces(Head + Event("UID:1") + "BEGIN:VTODO\nBEGIN:VALARM\nEND:VALARM\nUID:t\nEND:VTODO\n"
        + "BEGIN:VEVENT\nBEGIN:VALARM\nEND:VALARM\nUID:2\nEND:VEVENT\nEND:VCALENDAR\n");
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_EQ(pieces[0],
        "BEGIN:VCALENDAR\r\nX-WR-CALNAME:ann\r\nBEGIN:VTIMEZONE\r\nTZID:x\r\nEND:VTIMEZONE\r\n"
        "BEGIN:VEVENT\r\nUID:1\r\nEND:VEVENT\r\n"
        "BEGIN:VEVENT\r\nBEGIN:VALARM\r\nEND:VALARM\r\nUID:2\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
}

TEST_F(CalendarPiecesTest, Next_LargeCalendar_ComesInPiecesWithItsZones)
{
    std::string text = Head;
    const std::string filling(60000, 'x');
    constexpr int Events = 200;
    for (int i = 0; i < Events; ++i) {
        text += Event("UID:" + std::to_string(i) + "\nSUMMARY:" + filling);
    }
    const auto pieces = Pieces(text + "END:VCALENDAR\n");
    EXPECT_GT(pieces.size(), 2U);
    int events = 0;
    for (const auto& piece : pieces) {
        EXPECT_LT(piece.size(), std::size_t { 5 } << 20);
        EXPECT_THAT(piece, StartsWith("BEGIN:VCALENDAR\r\n"));
        EXPECT_THAT(piece, HasSubstr("TZID:x"));
        EXPECT_THAT(piece, EndsWith("END:VCALENDAR\r\n"));
        for (auto at = piece.find("UID:"); at != std::string::npos; at = piece.find("UID:", at + 1)) {
            ++events;
        }
    }
    EXPECT_EQ(events, Events);
    EXPECT_EQ(mSkipped.Count(Skipped::TooBig), 0);
}

TEST_F(CalendarPiecesTest, Next_ZonesBehindTheirEvents_AreWaitedFor)
{
    std::string text = "BEGIN:VCALENDAR\n";
    const std::string filling(60000, 'x');
    const auto events = [&](const std::string& start) {
        for (int i = 0; i < 100; ++i) {
            text += Event("DTSTART;" + start + ":20061002T090000\nSUMMARY:" + filling);
        }
    };
    events("TZID=x");
    events("VALUE=DATE-TIME;TZID=\"y: (north)\"");
    text += "BEGIN:VTIMEZONE\nTZID:x\nEND:VTIMEZONE\nBEGIN:VTIMEZONE\nTZID:y: (north)\nEND:VTIMEZONE\n";
    events("TZID=x");
    const auto pieces = Pieces(text + "END:VCALENDAR\n");
    EXPECT_EQ(pieces.size(), 3U);
    for (const auto& piece : pieces) {
        EXPECT_THAT(piece.substr(0, 200), HasSubstr("TZID:x\r\nEND:VTIMEZONE"));
        EXPECT_THAT(piece.substr(0, 200), HasSubstr("TZID:y: (north)\r\nEND:VTIMEZONE"));
    }
}

TEST_F(CalendarPiecesTest, Next_ZonesThatNeverCome_AreWaitedForUpToALimit)
{
    std::string text = "BEGIN:VCALENDAR\n";
    const auto event = Event("DTSTART;TZID=x:20061002T090000\nSUMMARY:" + std::string(60000, 'x'));
    for (int i = 0; i < 1000; ++i) {
        text += event;
    }
    const auto pieces = Pieces(text + "END:VCALENDAR\n");
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_LT(pieces[0].size(), std::size_t { 33 } << 20);
}

TEST_F(CalendarPiecesTest, Next_LongFields_AreCutAndCounted)
{
    std::string folded = "DESCRIPTION:x\n";
    for (int i = 0; i < 2000; ++i) {
        folded += " " + std::string(70, 'y') + "\n";
    }
    const auto pieces = Pieces(Head + Event(folded + "SUMMARY:short\nATTACH:" + std::string(200000, 'z') + "\nUID:1"));
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_LT(pieces[0].size(), 140000U);
    EXPECT_THAT(pieces[0], HasSubstr("SUMMARY:short\r\n"));
    EXPECT_THAT(pieces[0], HasSubstr("UID:1\r\n"));
    EXPECT_EQ(mSkipped.Count(Skipped::TooBig), 2);
}

TEST_F(CalendarPiecesTest, Next_SeveralCalendars_AreAPieceEach)
{
    const auto pieces
        = Pieces("x\nBEGIN:VCALENDAR\nA:1\n" + Event("UID:1") + "END:VCALENDAR\nbegin:vcalendar\n" + Event("UID:2"));
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_THAT(pieces[0], HasSubstr("UID:1"));
    EXPECT_THAT(pieces[1], HasSubstr("UID:2"));
    EXPECT_THAT(pieces[1], Not(HasSubstr("A:1")));
    EXPECT_TRUE(mHasCalendar);
}

TEST_F(CalendarPiecesTest, Next_NoCalendar_GivesNothing)
{
    EXPECT_TRUE(Pieces("start,end\nBEGIN:VEVENT\n").empty());
    EXPECT_FALSE(mHasCalendar);
}

TEST_F(CalendarPiecesTest, Next_FieldCutInALetter_EndsWithAWholeOne)
{
    std::string letters;
    for (int i = 0; i < 40000; ++i) {
        letters += "\u00fc";
    }
    const auto lines = Pieces(Head + Event("SUMMARY:" + letters) + Event("SUMMARYX:" + letters) + "END:VCALENDAR\n");
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_TRUE(IsUtf8(lines[0]));
    std::string folded = "SUMMARY:x";
    for (int i = 0; i < 2000; ++i) {
        // Each line ends with the first half of a letter.
        folded += std::string(40, 'y') + "\xc3\r\n \xbc";
    }
    const auto pieces = Pieces(Head + Event(folded) + "END:VCALENDAR\n");
    ASSERT_EQ(pieces.size(), 1U);
    EXPECT_THAT(pieces[0], HasSubstr("yy\r\nEND:VEVENT"));
    EXPECT_EQ(mSkipped.Count(Skipped::TooBig), 3);
}

}
