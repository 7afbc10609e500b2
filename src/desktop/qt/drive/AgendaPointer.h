#pragma once

#include "base/Date.h"
#include "desktop/AgendaHits.h"
#include "desktop/TimeSpan.h"

#include <QPoint>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

namespace tempodial {

class MainWindow;

/// The pointer and the keys on the activities that a window shows.
class AgendaPointer
{
public:
    /// The window must outlive it.
    explicit AgendaPointer(MainWindow& window)
        : mWindow(window)
    {
    }

    /// Pages to the week of a day, unless the activity is shown already, and scrolls to it; false when it isn't shown
    /// where the pointer can get at it.
    bool Reach(std::int64_t number, Date day);
    /// Clicks on an activity that was reached.
    void Click(std::int64_t number, Qt::KeyboardModifiers modifiers = {});
    void DoubleClick(std::int64_t number);
    /// Drags an activity that was reached to other times, or one of its edges; false when no such drag leads there
    /// within what can be seen.
    bool Drag(std::int64_t number, const TimeSpan& times);
    /// True for one of several short activities that Enter lists instead of opening it.
    bool IsOneOfRun(std::int64_t number) const;
    /// Presses a key in the agenda.
    void Press(Qt::Key key);

private:
    std::optional<std::size_t> PieceOf(std::int64_t number) const;
    /// A place of the viewport where the pointer is over a piece and over no other.
    std::optional<QPoint> PlaceOn(std::size_t piece) const;
    /// A place where it is over a part of a piece, and one to which that has to be dragged for other times; nothing
    /// when there are none.
    std::optional<std::pair<QPoint, QPoint>> WayOf(std::size_t piece, const TimeSpan& times) const;
    std::optional<QPoint> PlaceOn(std::size_t piece, AgendaHit::Part part) const;
    AgendaHit HitAt(const QPoint& place) const;

    MainWindow& mWindow;
};

}
