#pragma once

#include "sources/Skipped.h"

#include <cstddef>
#include <functional>
#include <istream>
#include <set>
#include <string>

namespace tempodial {

/// Takes the text of a calendar apart into smaller ones of some events each, with the zones that they are told in, so
/// that a calendar of any size is read in little memory. Events wait for a zone that stands behind them, up to a limit.
/// Fields that are too long are cut, and counted.
class CalendarPieces
{
public:
    CalendarPieces(std::istream& stream, Skipped& skipped)
        : mStream(stream)
        , mSkipped(skipped)
    {
    }

    /// Goes on to the next piece; false behind the last one.
    bool Next();
    const std::string& Piece() const { return mPiece; }
    /// True when there was a calendar so far.
    bool HasCalendar() const { return mHasCalendar; }

private:
    bool ReadLine();
    void TakeLine();
    /// The field in hand goes on with what is left out: it ends with a whole letter.
    void EndCutField();
    /// Notes the zone that an event's line is told in, unless it is known.
    void NoteZone();
    void EndPiece();

    std::istream& mStream;
    Skipped& mSkipped;
    std::string mPiece;
    /// What all pieces of a calendar begin with: its own properties and its zones.
    std::string mFrame;
    std::string mEvents;
    /// The zones of the calendar so far, and those that its events in hand wait for.
    std::set<std::string, std::less<>> mZones;
    std::set<std::string, std::less<>> mAwaitedZones;
    std::string mLine;
    /// The part of the calendar that the line in hand belongs to, empty outside of all.
    std::string mPart;
    /// Bytes of the field in hand.
    std::size_t mFieldBytes = 0;
    bool mHasCalendar = false;
    bool mIsOpen = false;
};

}
