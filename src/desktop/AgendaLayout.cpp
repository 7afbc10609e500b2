#include "desktop/AgendaLayout.h"

#include <algorithm>
#include <tuple>

namespace tempodial {

namespace {

/// Where a piece makes room for the next one: what takes no time takes a moment.
std::int32_t FreeFrom(const AgendaPiece& piece)
{
    return std::max(piece.span.to, piece.span.from + 1);
}

}

AgendaLayout::AgendaLayout(const std::vector<Activity>& activities, const Period& days)
{
    Cut(activities, days);
    std::sort(mPieces.begin(), mPieces.end(), [](const AgendaPiece& one, const AgendaPiece& other) {
        return std::tuple(one.day, one.span.from, -one.span.to, one.activity)
            < std::tuple(other.day, other.span.from, -other.span.to, other.activity);
    });
    const auto count = DaysBetween(days.first, days.last) + 1;
    for (int day = 0; day <= count; ++day) {
        const auto begin = std::partition_point(
            mPieces.begin(), mPieces.end(), [day](const AgendaPiece& piece) { return piece.day < day; });
        mDayBegins.push_back(static_cast<std::size_t>(begin - mPieces.begin()));
    }
    mReach.resize(mPieces.size());
    for (int day = 0; day < count; ++day) {
        Distribute(OfDay(day));
    }
}

void AgendaLayout::Cut(const std::vector<Activity>& activities, const Period& days)
{
    for (std::size_t index = 0; index < activities.size(); ++index) {
        const auto start = activities[index].start;
        const auto end = std::max(activities[index].end, start);
        for (auto day = std::max(start.Day(), days.first); day <= days.last; day = day.AddDays(1)) {
            if (day > start && day >= end) {
                break;
            }
            AgendaPiece piece;
            piece.activity = index;
            piece.day = DaysBetween(days.first, day);
            piece.hasStart = start >= day;
            piece.hasEnd = end <= day.AddDays(1);
            piece.span.from = static_cast<std::int32_t>(SecondsBetween(day, std::max(start, day)));
            piece.span.to = static_cast<std::int32_t>(SecondsBetween(day, std::min(end, day.AddDays(1))));
            mPieces.push_back(piece);
        }
    }
}

void AgendaLayout::Distribute(const PieceRange& day)
{
    std::vector<std::int32_t> free; // from when on each lane of the cluster is
    std::size_t cluster = day.begin;
    std::int32_t reach = 0;
    const auto endCluster = [&](std::size_t end) {
        for (; cluster < end; ++cluster) {
            mPieces[cluster].lanes = static_cast<int>(free.size());
        }
        free.clear();
    };
    for (auto index = day.begin; index < day.end; ++index) {
        auto& piece = mPieces[index];
        if (piece.span.from >= reach) {
            endCluster(index);
        }
        const auto lane
            = std::find_if(free.begin(), free.end(), [&piece](auto from) { return from <= piece.span.from; });
        piece.lane = static_cast<int>(lane - free.begin());
        if (lane == free.end()) {
            free.push_back(FreeFrom(piece));
        } else {
            *lane = FreeFrom(piece);
        }
        reach = std::max(reach, FreeFrom(piece));
        mReach[index] = reach;
    }
    endCluster(day.end);
}

PieceRange AgendaLayout::OfDay(int day) const
{
    const auto index = static_cast<std::size_t>(day);
    return { mDayBegins[index], mDayBegins[index + 1] };
}

PieceRange AgendaLayout::Reaching(int day, const DaySpan& span) const
{
    const auto all = OfDay(day);
    const auto at = [](std::size_t index) { return static_cast<std::ptrdiff_t>(index); };
    const auto first = std::partition_point(mReach.begin() + at(all.begin), mReach.begin() + at(all.end),
        [&span](std::int32_t reach) { return reach <= span.from; });
    const auto last = std::partition_point(mPieces.begin() + at(all.begin), mPieces.begin() + at(all.end),
        [&span](const AgendaPiece& piece) { return piece.span.from < span.to; });
    return { static_cast<std::size_t>(first - mReach.begin()), static_cast<std::size_t>(last - mPieces.begin()) };
}

DaySpan AgendaLayout::Hours(const DaySpan& otherwise) const
{
    constexpr std::int32_t Around = 30 * 60;
    if (mPieces.empty()) {
        return otherwise;
    }
    DaySpan hours { DaySpan::WholeDay, 0 };
    for (const auto& piece : mPieces) {
        hours.from = std::min(hours.from, piece.span.from);
        hours.to = std::max(hours.to, piece.span.to);
    }
    return { std::max(hours.from - Around, 0), std::min(hours.to + Around, DaySpan::WholeDay) };
}

}
