#pragma once

#include "desktop/DaySpan.h"
#include "review/Activity.h"
#include "review/Period.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tempodial {

/// What of an activity lies in one day.
struct AgendaPiece
{
    /// The place of the activity in the list that was laid out.
    std::size_t activity = 0;
    /// The day, from 0.
    int day = 0;
    DaySpan span;
    /// False when the activity began on a day before.
    bool hasStart = true;
    /// False when it goes on in the day behind.
    bool hasEnd = true;
    /// The lane, from 0 at the left, and how many share the day's column there.
    int lane = 0;
    int lanes = 1;
};

/// Places of pieces in the list of a layout, the end left out.
struct PieceRange
{
    std::size_t begin = 0;
    std::size_t end = 0;

    bool IsEmpty() const { return begin >= end; }

    friend bool operator==(const PieceRange&, const PieceRange&) = default;
};

/// Activities on the days of an agenda, cut at midnight. Those that have time in common share the width of their day:
/// each takes the first free lane from the left, and a lane is as wide as the lanes of its cluster allow.
class AgendaLayout
{
public:
    /// Takes activities in any order; what lies outside of the days is left out.
    AgendaLayout(const std::vector<Activity>& activities, const Period& days);

    /// How many days there are.
    int Days() const { return static_cast<int>(mDayBegins.size()) - 1; }
    /// All pieces, by day, and within it by start; of those that start together the longest comes first.
    const std::vector<AgendaPiece>& Pieces() const { return mPieces; }
    /// The pieces of a day.
    PieceRange OfDay(int day) const;
    /// The pieces of a day from the first that reaches into a span to the last that begins in it; a few between them
    /// may end before it.
    PieceRange Reaching(int day, const DaySpan& span) const;
    /// The part of the day from the first start to the last end of all days, with half an hour around it; another when
    /// there are no activities.
    DaySpan Hours(const DaySpan& otherwise) const;

private:
    void Cut(const std::vector<Activity>& activities, const Period& days);
    void Distribute(const PieceRange& day);

    std::vector<AgendaPiece> mPieces;
    /// The places at which the days begin, and the end.
    std::vector<std::size_t> mDayBegins;
    /// For each piece the last end among those of its day up to it.
    std::vector<std::int32_t> mReach;
};

}
