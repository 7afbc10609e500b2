#pragma once

#include "desktop/AgendaHits.h"
#include "desktop/DragGesture.h"

#include <QPointF>
#include <cstdint>
#include <optional>
#include <set>

class QHelpEvent;
class QKeyEvent;
class QMouseEvent;

namespace tempodial {

class AgendaView;

/// What a person does in an agenda with the pointer: selecting, also with a band, dragging, opening.
class AgendaMouse
{
public:
    /// The view must live as long as this.
    explicit AgendaMouse(AgendaView& view)
        : mView(view)
    {
    }

    void Press(const QMouseEvent& event);
    void Move(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    void DoubleClick(const QMouseEvent& event);
    /// The pointer rests: short ones open their list, other things say what they are.
    void ToolTip(const QHelpEvent& event);
    /// A list that has opened by that goes.
    void EndRest() const;
    /// Escape ends what has been begun; true when there was something.
    bool Key(const QKeyEvent& event);
    /// True while something is dragged or selected by a band.
    bool IsBusy() const { return mHasMoved; }

private:
    AgendaHit HitAt(const QPointF& place) const;
    void PressOn(std::size_t piece, const QMouseEvent& event);
    void SelectRun(const AgendaHit& hit, bool adds);
    /// The run of short ones whose stripe or label was hit.
    std::optional<std::size_t> RunAt(const AgendaHit& hit) const;
    /// The pointer is on something else, perhaps no more on what has opened a list by resting.
    void FollowRest(const AgendaHit& hit) const;
    /// Opens the list of the run that the one of that number is in; does nothing when it is in none any more.
    void ShowRunOf(std::int64_t number);
    void ShowCursor(const AgendaHit& hit) const;
    void Drag(const QMouseEvent& event);
    void Band(const QMouseEvent& event);
    void Forget();
    /// The place that is meant by one beyond the upper or lower edge, towards which it scrolls.
    QPointF ScrolledTo(const QPointF& place) const;

    AgendaView& mView;
    bool mIsDown = false;
    /// The run whose list has opened by resting on it.
    std::size_t mRested = 0;
    bool mHasMoved = false;
    QPointF mFrom;
    AgendaHit mHit;
    std::optional<DragGesture> mDrag;
    std::optional<TimeSpan> mTimes;
    /// The activity that was pressed on, or the first of the run whose label was.
    std::int64_t mNumber = 0;
    /// A click without a drag selects this one alone of several.
    bool mIsAloneOnRelease = false;
    /// What was selected before a band was drawn with Ctrl.
    std::set<std::int64_t> mKept;
};

}
