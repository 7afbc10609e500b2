#include "desktop/ShortRuns.h"

#include "base/Text.h"

#include <algorithm>

namespace tempodial {

namespace {

/// Seconds.
constexpr std::int32_t RunDistance = 5 * 60;
/// Between a stripe and its label.
constexpr double LabelDistance = 5;

/// One day's stripes.
class DayOfRuns
{
public:
    DayOfRuns(const std::vector<Activity>& activities, const AgendaLayout& layout, const AgendaGeometry& geometry,
        const PieceRange& day)
        : mActivities(activities)
        , mPieces(layout.Pieces())
        , mGeometry(geometry)
        , mDay(day)
    {
    }

    void AddTo(std::vector<ShortRun>& runs)
    {
        for (auto index = mDay.begin; index < mDay.end;) {
            if (!mGeometry.IsStripe(mPieces[index])) {
                NoteEnd(index++);
                continue;
            }
            ShortRun run;
            run.pieces = { index, index + 1 };
            auto end = mPieces[index].span.to;
            for (; Continues(run.pieces.end, end); ++run.pieces.end) {
                end = std::max(end, mPieces[run.pieces.end].span.to);
            }
            Place(run, end);
            runs.push_back(run);
            for (; index < run.pieces.end; ++index) {
                NoteEnd(index);
            }
        }
    }

private:
    void NoteEnd(std::size_t index)
    {
        if (!mAbove || mPieces[index].span.to >= mPieces[*mAbove].span.to) {
            mAbove = index;
        }
    }

    bool Continues(std::size_t index, std::int32_t end) const
    {
        return index < mDay.end && mGeometry.IsStripe(mPieces[index]) && mPieces[index].span.from - end < RunDistance;
    }

    void Place(ShortRun& run, std::int32_t end) const
    {
        const auto& scale = mGeometry.Scale();
        const auto start = mPieces[run.pieces.begin].span.from;
        double stripes = 0;
        double right = 0;
        double bottom = 0;
        for (auto index = run.pieces.begin; index < run.pieces.end; ++index) {
            const auto box = mGeometry.BoxOf(mPieces[index]);
            stripes = std::max(stripes, box.Right());
            right = std::max(right, mGeometry.LaneOf(mPieces[index]).Right());
            bottom = std::max(bottom, box.Bottom());
        }
        const auto top = scale.PlaceOf(start);
        const auto highest = std::min(mAbove ? scale.PlaceOf(mPieces[*mAbove].span.to) : 0, top);
        const bool hasBelow = run.pieces.end < mDay.end;
        const auto below = hasBelow ? scale.PlaceOf(mPieces[run.pieces.end].span.from) : scale.DayHeight();
        const auto left = stripes + LabelDistance;
        run.room = { left, highest, std::max(right - left, 0.0), std::max(below, bottom) - highest };
        run.middle = (top + bottom) / 2;
        if (mAbove && hasBelow && start - mPieces[*mAbove].span.to < RunDistance
            && mPieces[run.pieces.end].span.from - end < RunDistance) {
            const auto& above = mActivities[mPieces[*mAbove].activity];
            const auto& next = mActivities[mPieces[run.pieces.end].activity];
            if (EqualIgnoringCase(ProjectNameOf(above), ProjectNameOf(next))) {
                run.folded = mPieces[*mAbove].activity;
            }
        }
    }

    const std::vector<Activity>& mActivities;
    const std::vector<AgendaPiece>& mPieces;
    const AgendaGeometry& mGeometry;
    PieceRange mDay;
    /// Of the pieces seen so far that which ends last.
    std::optional<std::size_t> mAbove;
};

}

std::optional<PixelBox> ShortRun::LabelBox(double height) const
{
    if (room.height < height || room.width <= 0) {
        return std::nullopt;
    }
    const auto top = std::clamp(middle - height / 2, room.top, room.Bottom() - height);
    return PixelBox { room.left, top, room.width, height };
}

std::vector<ShortRun> ShortRunsOf(
    const std::vector<Activity>& activities, const AgendaLayout& layout, const AgendaGeometry& geometry)
{
    std::vector<ShortRun> runs;
    for (int day = 0; day < layout.Days(); ++day) {
        DayOfRuns(activities, layout, geometry, layout.OfDay(day)).AddTo(runs);
    }
    return runs;
}

}
