#pragma once

#include "desktop/ShortRuns.h"
#include "desktop/TimeSpan.h"
#include "review/Gaps.h"

#include <cstddef>
#include <vector>

namespace tempodial {

/// What is under a point of the agenda.
struct AgendaHit
{
    enum class Part {
        /// Beside the days.
        Nothing,
        /// A piece, its edge at which the activity begins, and that at which it ends.
        Body,
        Start,
        End,
        /// The label of a run of stripes.
        Label,
        Gap,
        /// Time without an activity.
        Free
    };

    Part part = Part::Nothing;
    /// The place of the piece, the run or the gap in its list.
    std::size_t index = 0;
    /// The moment under the point.
    Date moment;
    /// For a gap and for free time: what a new activity there would take, the gap, or the half hour as far as it is
    /// free.
    TimeSpan span;
};

/// Finds what is under a point, or within a rubber band.
class AgendaHits
{
public:
    /// What was laid out, which must live as long as this. Without runs there are no labels.
    struct Scene
    {
        const AgendaLayout& layout;
        const AgendaGeometry& geometry;
        const std::vector<ShortRun>& runs;
        const std::vector<Gap>& gaps;
        Date firstDay;
        double labelHeight;
    };

    explicit AgendaHits(const Scene& scene)
        : mScene(scene)
    {
    }

    /// What is under a point; what is drawn later lies above.
    AgendaHit At(double x, double y) const;
    /// The moment under a point, or at that of the days which is nearest to it.
    Date MomentNear(double x, double y) const;
    /// The activities that a box meets, each once, in the order of the list that was laid out.
    std::vector<std::size_t> ActivitiesIn(const PixelBox& box) const;

private:
    bool FindPiece(int day, double x, double y, AgendaHit& hit) const;
    bool FindStripeNear(int day, double x, double y, AgendaHit& hit) const;
    bool FindLabel(double x, double y, AgendaHit& hit) const;
    bool FindGap(AgendaHit& hit) const;
    TimeSpan FreeSpan(int day, Date moment) const;
    PieceRange Near(int day, double top, double bottom) const;

    Scene mScene;
};

}
