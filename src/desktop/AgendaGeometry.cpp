#include "desktop/AgendaGeometry.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr double LineHeight = 11;
/// What takes no time must be seen and clicked all the same.
constexpr double LeastHeight = 2;
/// Where more lanes stand side by side than have this width, they cover each other.
constexpr double LeastLaneWidth = 14;
constexpr double LeftMargin = 3;
constexpr double RightMargin = 4;
constexpr double BetweenLanes = 2;

}

AgendaGeometry::AgendaGeometry(const TimeScale& scale, int days, double left, double width)
    : mScale(scale)
    , mDays(days)
    , mLeft(left)
    , mWidth(width)
{
}

double AgendaGeometry::EdgeOf(int day) const
{
    return mScale.Snapped(mLeft + mWidth * day / mDays);
}

PixelBox AgendaGeometry::Column(int day) const
{
    const auto left = EdgeOf(day);
    return { left, 0, EdgeOf(day + 1) - left, mScale.DayHeight() };
}

std::optional<int> AgendaGeometry::DayAt(double x) const
{
    if (x < EdgeOf(0) || x >= EdgeOf(mDays)) {
        return std::nullopt;
    }
    int day = 0;
    while (x >= EdgeOf(day + 1)) {
        ++day;
    }
    return day;
}

double AgendaGeometry::HeightOf(const AgendaPiece& piece) const
{
    return std::max(mScale.PlaceOf(piece.span.to) - mScale.PlaceOf(piece.span.from), LeastHeight);
}

bool AgendaGeometry::IsStripe(const AgendaPiece& piece) const
{
    return HeightOf(piece) < LineHeight;
}

PixelBox AgendaGeometry::LaneOf(const AgendaPiece& piece) const
{
    const auto column = Column(piece.day);
    const auto inner = std::max(column.width - LeftMargin - RightMargin, 1.0);
    const auto even = inner / piece.lanes;
    const auto width = std::max(even, std::min(LeastLaneWidth, inner));
    const auto step = piece.lanes > 1 ? (inner - width) / (piece.lanes - 1) : 0;
    const auto left = mScale.Snapped(column.left + LeftMargin + step * piece.lane);
    const bool isRightmost = piece.lane + 1 == piece.lanes;
    const auto right = mScale.Snapped(column.left + LeftMargin + step * piece.lane + width);
    const auto gap = isRightmost || even < LeastLaneWidth ? 0 : BetweenLanes;
    return { left, mScale.PlaceOf(piece.span.from), right - left - gap, HeightOf(piece) };
}

PixelBox AgendaGeometry::BoxOf(const AgendaPiece& piece) const
{
    auto box = LaneOf(piece);
    if (IsStripe(piece)) {
        box.width = std::min(box.width, StripeWidth);
    }
    return box;
}

}
