#include "desktop/AgendaHits.h"

#include <algorithm>

namespace tempodial {

namespace {

/// How near to its end an activity is taken by that, and what height must be left between both.
constexpr double EdgeHeight = 5;
constexpr double LeastBody = 8;
/// How near to a stripe it is meant.
constexpr double StripeReach = 3;

AgendaHit::Part PartAt(const AgendaPiece& piece, const PixelBox& box, double y)
{
    if (box.height >= 2 * EdgeHeight + LeastBody) {
        if (piece.hasStart && y < box.top + EdgeHeight) {
            return AgendaHit::Part::Start;
        }
        if (piece.hasEnd && y >= box.Bottom() - EdgeHeight) {
            return AgendaHit::Part::End;
        }
    }
    return AgendaHit::Part::Body;
}

}

AgendaHit AgendaHits::At(double x, double y) const
{
    AgendaHit hit;
    const auto day = mScene.geometry.DayAt(x);
    if (!day || y < 0 || y >= mScene.geometry.Scale().DayHeight()) {
        return hit;
    }
    hit.moment = mScene.firstDay.AddDays(*day).AddSeconds(mScene.geometry.Scale().SecondAt(y));
    if (!FindPiece(*day, x, y, hit) && !FindLabel(x, y, hit) && !FindStripeNear(*day, x, y, hit) && !FindGap(hit)) {
        hit.part = AgendaHit::Part::Free;
        hit.span = FreeSpan(*day, hit.moment);
    }
    return hit;
}

Date AgendaHits::MomentNear(double x, double y) const
{
    const auto& geometry = mScene.geometry;
    const auto last = mScene.layout.Days() - 1;
    const auto isBeyond = x >= geometry.Column(last).Right();
    const auto day = isBeyond ? last : geometry.DayAt(x).value_or(0);
    const auto seconds = geometry.Scale().SecondAt(std::clamp(y, 0.0, geometry.Scale().DayHeight() - 1));
    return mScene.firstDay.AddDays(day).AddSeconds(seconds);
}

PieceRange AgendaHits::Near(int day, double top, double bottom) const
{
    // A piece may be drawn a little higher than its time.
    const auto& scale = mScene.geometry.Scale();
    return mScene.layout.Reaching(
        day, { scale.SecondAt(top - StripeReach) - 1, scale.SecondAt(bottom + StripeReach) + 1 });
}

bool AgendaHits::FindPiece(int day, double x, double y, AgendaHit& hit) const
{
    const auto near = Near(day, y, y);
    for (auto index = near.end; index > near.begin; --index) {
        const auto& piece = mScene.layout.Pieces()[index - 1];
        const auto box = mScene.geometry.BoxOf(piece);
        if (box.Holds(x, y)) {
            hit.part = PartAt(piece, box, y);
            hit.index = index - 1;
            return true;
        }
    }
    return false;
}

bool AgendaHits::FindStripeNear(int day, double x, double y, AgendaHit& hit) const
{
    auto nearest = StripeReach;
    bool isFound = false;
    const auto near = Near(day, y, y);
    for (auto index = near.begin; index < near.end; ++index) {
        const auto& piece = mScene.layout.Pieces()[index];
        const auto box = mScene.geometry.BoxOf(piece);
        const auto distance = std::max(box.top - y, y - box.Bottom());
        if (mScene.geometry.IsStripe(piece) && x >= box.left && x < box.Right() && distance <= nearest) {
            nearest = distance;
            hit.part = AgendaHit::Part::Body;
            hit.index = index;
            isFound = true;
        }
    }
    return isFound;
}

bool AgendaHits::FindLabel(double x, double y, AgendaHit& hit) const
{
    const auto found = std::find_if(mScene.runs.begin(), mScene.runs.end(), [&](const ShortRun& run) {
        const auto box = run.LabelBox(mScene.labelHeight);
        return box && box->Holds(x, y);
    });
    if (found == mScene.runs.end()) {
        return false;
    }
    hit.part = AgendaHit::Part::Label;
    hit.index = static_cast<std::size_t>(found - mScene.runs.begin());
    return true;
}

bool AgendaHits::FindGap(AgendaHit& hit) const
{
    const auto found = std::find_if(mScene.gaps.begin(), mScene.gaps.end(),
        [&hit](const Gap& gap) { return hit.moment >= gap.from && hit.moment < gap.to; });
    if (found == mScene.gaps.end()) {
        return false;
    }
    hit.part = AgendaHit::Part::Gap;
    hit.index = static_cast<std::size_t>(found - mScene.gaps.begin());
    hit.span = { found->from, found->to };
    return true;
}

TimeSpan AgendaHits::FreeSpan(int day, Date moment) const
{
    constexpr std::int32_t HalfHour = 30 * 60;
    const auto second = static_cast<std::int32_t>(moment.SecondOfDay());
    DaySpan free { second / HalfHour * HalfHour, 0 };
    free.to = free.from + HalfHour;
    const auto near = mScene.layout.Reaching(day, free);
    for (auto index = near.begin; index < near.end; ++index) {
        const auto& span = mScene.layout.Pieces()[index].span;
        if (span.to <= second) {
            free.from = std::max(free.from, span.to);
        } else if (span.from > second) {
            free.to = std::min(free.to, span.from);
        }
    }
    return { moment.Day().AddSeconds(free.from), moment.Day().AddSeconds(free.to) };
}

std::vector<std::size_t> AgendaHits::ActivitiesIn(const PixelBox& box) const
{
    std::vector<std::size_t> activities;
    for (int day = 0; day < mScene.layout.Days(); ++day) {
        if (!mScene.geometry.Column(day).Meets(box)) {
            continue;
        }
        const auto near = Near(day, box.top, box.Bottom());
        for (auto index = near.begin; index < near.end; ++index) {
            const auto& piece = mScene.layout.Pieces()[index];
            if (mScene.geometry.BoxOf(piece).Meets(box)) {
                activities.push_back(piece.activity);
            }
        }
    }
    std::sort(activities.begin(), activities.end());
    activities.erase(std::unique(activities.begin(), activities.end()), activities.end());
    return activities;
}

}
