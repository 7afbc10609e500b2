#include "desktop/qt/AgendaKeys.h"

#include "desktop/DragGesture.h"
#include "desktop/qt/AgendaView.h"

#include <QKeyEvent>

namespace tempodial {

namespace {

bool IsWay(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right
        || key == Qt::Key_Home || key == Qt::Key_End;
}

}

bool AgendaKeys::Press(const QKeyEvent& event)
{
    if (event.modifiers().testFlag(Qt::AltModifier)) {
        return Nudge(event);
    }
    if (IsWay(event.key())) {
        if (const auto goal = Goal(event.key())) {
            GoTo(*goal, event);
        }
        return true;
    }
    const auto focus = mView.Focus();
    if (!focus) {
        return false;
    }
    if (event.key() == Qt::Key_Space) {
        Toggle();
        return true;
    }
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        if (const auto run = mView.Scene().RunOf(*focus)) {
            mView.ShowRun(*run);
        } else {
            mView.mWishes.open(mView.ActivityOf(*focus).number);
        }
        return true;
    }
    return false;
}

std::optional<std::size_t> AgendaKeys::First() const
{
    const auto walk = mView.Scene().Walk();
    for (int day = 0; day < mView.Scene().Layout().Days(); ++day) {
        if (const auto first = walk.FirstOf(day)) {
            return first;
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> AgendaKeys::Goal(int key) const
{
    const auto focus = mView.Focus();
    if (!focus) {
        return First();
    }
    const auto walk = mView.Scene().Walk();
    const auto day = mView.Scene().Layout().Pieces()[*focus].day;
    switch (key) {
    case Qt::Key_Up:
        return walk.Above(*focus);
    case Qt::Key_Down:
        return walk.Below(*focus);
    case Qt::Key_Left:
        return walk.Left(*focus);
    case Qt::Key_Right:
        return walk.Right(*focus);
    case Qt::Key_Home:
        return walk.FirstOf(day);
    default:
        return walk.LastOf(day);
    }
}

void AgendaKeys::GoTo(std::size_t piece, const QKeyEvent& event)
{
    const auto number = mView.ActivityOf(piece).number;
    mView.SetFocusOn(piece);
    if (event.modifiers().testFlag(Qt::ControlModifier)) {
        return;
    }
    auto selected = event.modifiers().testFlag(Qt::ShiftModifier) ? mView.Selected() : AgendaView::Numbers();
    selected.insert(number);
    if (selected != mView.Selected()) {
        mView.mWishes.select(selected);
    }
}

void AgendaKeys::Toggle()
{
    const auto number = mView.ActivityOf(*mView.Focus()).number;
    auto selected = mView.Selected();
    if (selected.erase(number) == 0) {
        selected.insert(number);
    }
    mView.mWishes.select(selected);
}

bool AgendaKeys::Nudge(const QKeyEvent& event)
{
    const bool isUp = event.key() == Qt::Key_Up;
    if (!mView.Focus() || (!isUp && event.key() != Qt::Key_Down)) {
        return false;
    }
    const auto& activity = mView.ActivityOf(*mView.Focus());
    const auto part = event.modifiers().testFlag(Qt::ShiftModifier) ? DragGesture::Part::End : DragGesture::Part::Whole;
    const TimeSpan before { activity.start, activity.end };
    const auto times = DragGesture::Nudged(part, before, isUp ? -1 : 1);
    if (times != before) {
        mView.mWishes.move(activity.number, times);
    }
    return true;
}

}
