#include "sources/CalendarPieces.h"

#include "base/Text.h"
#include "sources/CutText.h"
#include "sources/SourceReader.h"

#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t PieceBytes = std::size_t { 4 } << 20;
/// The most that waits for zones: some calendars name zones that they don't hold.
constexpr std::size_t WaitingBytes = std::size_t { 32 } << 20;
constexpr std::string_view Begin = "begin:";
constexpr std::string_view End = "end:";
constexpr auto CalendarPart = "vcalendar";
constexpr auto EventPart = "vevent";
constexpr auto ZonePart = "vtimezone";
constexpr std::string_view ZoneName = "TZID:";
constexpr std::string_view ZoneParameter = ";TZID=";
constexpr std::string_view LineEnd = "\r\n";
constexpr auto CalendarEnd = "END:VCALENDAR\r\n";

/// What a line begins or ends, folded; empty when it does neither.
std::string PartOf(const std::string& line, std::string_view word)
{
    constexpr std::size_t LongestPart = 40;
    if (line.size() > LongestPart) {
        return {};
    }
    const auto folded = Fold(line);
    return folded.starts_with(word) ? folded.substr(word.size()) : std::string();
}

}

bool CalendarPieces::Next()
{
    mPiece.clear();
    while (mPiece.empty() && ReadLine()) {
        TakeLine();
    }
    if (mPiece.empty() && mIsOpen) {
        EndPiece();
        mIsOpen = false;
    }
    return !mPiece.empty();
}

bool CalendarPieces::ReadLine()
{
    mLine.clear();
    auto* buffer = mStream.rdbuf();
    constexpr auto AtEnd = std::istream::traits_type::eof();
    bool isCut = false;
    bool hasAny = false;
    for (auto byte = buffer->sbumpc(); byte != AtEnd; byte = buffer->sbumpc()) {
        hasAny = true;
        if (byte == '\n') {
            break;
        }
        if (mLine.size() < MostFieldBytes) {
            mLine += static_cast<char>(byte);
        } else {
            isCut = true;
        }
    }
    if (mLine.ends_with('\r')) {
        mLine.pop_back();
    }
    if (isCut) {
        DropCutLetter(mLine);
        mSkipped.Add(Skipped::TooBig);
    }
    return hasAny;
}

void CalendarPieces::TakeLine()
{
    const bool goesOn = mLine.starts_with(' ') || mLine.starts_with('\t');
    const auto before = std::exchange(mFieldBytes, goesOn ? mFieldBytes + mLine.size() : mLine.size());
    if (mFieldBytes > MostFieldBytes) {
        if (before <= MostFieldBytes) {
            mSkipped.Add(Skipped::TooBig);
            EndCutField();
        }
        return;
    }
    if (const auto part = PartOf(mLine, Begin); part == CalendarPart) {
        mFrame.clear();
        mEvents.clear();
        mZones.clear();
        mAwaitedZones.clear();
        mPart.clear();
        mHasCalendar = true;
        mIsOpen = true;
    } else if (!part.empty() && mPart.empty()) {
        mPart = part;
    }
    if (!mIsOpen) {
        return;
    }
    const auto ended = PartOf(mLine, End);
    if (ended == CalendarPart) {
        EndPiece();
        mIsOpen = false;
        return;
    }
    if (mPart == EventPart) {
        NoteZone();
        (mEvents += mLine) += LineEnd;
    } else if (mPart.empty() || mPart == ZonePart) {
        if (mLine.starts_with(ZoneName)) {
            const auto zone = mLine.substr(ZoneName.size());
            mAwaitedZones.erase(zone);
            mZones.insert(zone);
        }
        (mFrame += mLine) += LineEnd;
    }
    if (!mPart.empty() && ended == mPart) {
        mPart.clear();
        if (mEvents.size() >= (mAwaitedZones.empty() ? PieceBytes : WaitingBytes)) {
            EndPiece();
        }
    }
}

void CalendarPieces::EndCutField()
{
    for (auto* text : { &mEvents, &mFrame }) {
        if (text->ends_with(LineEnd)) {
            text->resize(text->size() - LineEnd.size());
            DropCutLetter(*text);
            *text += LineEnd;
        }
    }
}

void CalendarPieces::NoteZone()
{
    const auto at = mLine.find(ZoneParameter);
    if (at == std::string::npos) {
        return;
    }
    auto zone = mLine.substr(at + ZoneParameter.size());
    const bool isQuoted = zone.starts_with('"');
    const auto end = isQuoted ? zone.find('"', 1) : zone.find_first_of(":;");
    zone = zone.substr(0, end).substr(isQuoted ? 1 : 0);
    if (!mZones.contains(zone)) {
        mAwaitedZones.insert(std::move(zone));
    }
}

void CalendarPieces::EndPiece()
{
    mAwaitedZones.clear();
    mPiece = mFrame + std::exchange(mEvents, {}) + CalendarEnd;
}

}
