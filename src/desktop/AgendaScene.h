#pragma once

#include "desktop/AgendaGaps.h"
#include "desktop/AgendaGeometry.h"
#include "desktop/AgendaHits.h"
#include "desktop/AgendaLayout.h"
#include "desktop/AgendaWalk.h"
#include "desktop/ShortRuns.h"

#include <optional>
#include <vector>

namespace tempodial {

/// What an agenda draws, laid out: the pieces of activities, the labels of short ones, the gaps. Another width or zoom
/// keeps the pieces in their lanes.
class AgendaScene
{
public:
    /// Where it is drawn.
    struct Place
    {
        TimeScale scale;
        /// The place and the width of all columns.
        double left = 0;
        double width = 0;
        /// The height of a line of the smallest text.
        double labelHeight = 0;
    };

    /// Takes activities in order of start, which must live as long as this.
    AgendaScene(const std::vector<Activity>& activities, const std::vector<Activity>& all, const Period& days,
        const Place& place);
    AgendaScene(const AgendaScene&) = delete;
    AgendaScene& operator=(const AgendaScene&) = delete;

    /// Draws it elsewhere.
    void Put(const Place& place);

    const std::vector<Activity>& Activities() const { return mActivities; }
    const Period& Days() const { return mDays; }
    const AgendaLayout& Layout() const { return mLayout; }
    const AgendaGeometry& Geometry() const { return mGeometry; }
    const TimeScale& Scale() const { return mGeometry.Scale(); }
    const std::vector<ShortRun>& Runs() const { return mRuns; }
    const std::vector<Gap>& Gaps() const { return mGaps; }
    double LabelHeight() const { return mLabelHeight; }
    AgendaHits Hits() const;
    AgendaWalk Walk() const { return AgendaWalk(mLayout); }
    /// The run of several short ones that a piece is part of; nothing when it is part of none.
    std::optional<std::size_t> RunOf(std::size_t piece) const;
    /// The activity of a piece.
    const Activity& ActivityOf(const AgendaPiece& piece) const { return mActivities[piece.activity]; }

private:
    const std::vector<Activity>& mActivities;
    Period mDays;
    AgendaLayout mLayout;
    AgendaGeometry mGeometry;
    std::vector<ShortRun> mRuns;
    std::vector<Gap> mGaps;
    double mLabelHeight;
};

}
