#include "desktop/AgendaScene.h"

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
