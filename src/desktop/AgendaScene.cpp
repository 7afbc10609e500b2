#include "desktop/AgendaScene.h"

#include <algorithm>

namespace tempodial {

AgendaScene::AgendaScene(
    const std::vector<Activity>& activities, const std::vector<Activity>& all, const Period& days, const Place& place)
    : mActivities(activities)
    , mDays(days)
    , mLayout(activities, days)
    , mGeometry(place.scale, mLayout.Days(), place.left, place.width)
    , mRuns(ShortRunsOf(activities, mLayout, mGeometry))
    , mGaps(AgendaGaps(all, days))
    , mLabelHeight(place.labelHeight)
{
}

void AgendaScene::Put(const Place& place)
{
    mGeometry = AgendaGeometry(place.scale, mLayout.Days(), place.left, place.width);
    mRuns = ShortRunsOf(mActivities, mLayout, mGeometry);
    mLabelHeight = place.labelHeight;
}

std::optional<std::size_t> AgendaScene::RunOf(std::size_t piece) const
{
    const auto found = std::find_if(mRuns.begin(), mRuns.end(), [piece](const ShortRun& run) {
        return piece >= run.pieces.begin && piece < run.pieces.end && run.pieces.end - run.pieces.begin > 1;
    });
    return found == mRuns.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - mRuns.begin()));
}

AgendaHits AgendaScene::Hits() const
{
    return AgendaHits({ .layout = mLayout,
        .geometry = mGeometry,
        .runs = mRuns,
        .gaps = mGaps,
        .firstDay = mDays.first,
        .labelHeight = mLabelHeight });
}

}
