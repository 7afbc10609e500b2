#include "desktop/qt/AgendaMouse.h"

#include "desktop/DesktopStrings.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ShownLine.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

namespace tempodial {

namespace {

bool IsOnPiece(const AgendaHit& hit)
{
    return hit.part == AgendaHit::Part::Body || hit.part == AgendaHit::Part::Start || hit.part == AgendaHit::Part::End;
}

DragGesture::Part PartOf(const AgendaHit& hit)
{
    switch (hit.part) {
    case AgendaHit::Part::Start:
        return DragGesture::Part::Start;
    case AgendaHit::Part::End:
        return DragGesture::Part::End;
    default:
        return DragGesture::Part::Whole;
    }
}

}

AgendaHit AgendaMouse::HitAt(const QPointF& place) const
{
    const auto inScene = mView.InScene(place);
    return mView.Scene().Hits().At(inScene.x(), inScene.y());
}

void AgendaMouse::Press(const QMouseEvent& event)
{
    EndRest();
    mHit = HitAt(event.position());
    const bool adds = event.modifiers().testFlag(Qt::ControlModifier);
    if (event.button() == Qt::RightButton) {
        if (IsOnPiece(mHit) && mView.Selected().count(mView.ActivityOf(mHit.index).number) == 0) {
            PressOn(mHit.index, event);
        }
        return;
    }
    if (event.button() != Qt::LeftButton) {
        return;
    }
    mIsDown = true;
    mHasMoved = false;
    mFrom = mView.InScene(event.position());
    mKept = adds ? mView.Selected() : AgendaView::Numbers();
    if (IsOnPiece(mHit)) {
        PressOn(mHit.index, event);
    } else if (mHit.part == AgendaHit::Part::Label) {
        SelectRun(mHit, adds);
    } else if (!adds && !mView.Selected().empty()) {
        mView.mWishes.select({});
    }
}

void AgendaMouse::PressOn(std::size_t piece, const QMouseEvent& event)
{
    const auto& activity = mView.ActivityOf(piece);
    mNumber = activity.number;
    mIsAloneOnRelease = false;
    auto selected = mView.Selected();
    if (event.modifiers().testFlag(Qt::ControlModifier)) {
        if (selected.erase(mNumber) == 0) {
            selected.insert(mNumber);
        }
    } else if (event.modifiers().testFlag(Qt::ShiftModifier) && mView.Focus()) {
        selected.clear();
        const auto focus = *mView.Focus();
        const auto [first, last] = std::minmax(focus, piece);
        for (auto i = first; i <= last; ++i) {
            selected.insert(mView.ActivityOf(i).number);
        }
    } else if (selected.count(mNumber) > 0) {
        mIsAloneOnRelease = selected.size() > 1;
    } else {
        selected = { mNumber };
    }
    if (!event.modifiers().testFlag(Qt::ShiftModifier)) {
        mView.SetFocusOn(piece);
    }
    const TimeSpan times { activity.start, activity.end };
    mDrag.emplace(PartOf(mHit), times, mHit.moment);
    if (selected != mView.Selected()) {
        mView.mWishes.select(selected);
    }
}

void AgendaMouse::SelectRun(const AgendaHit& hit, bool adds)
{
    auto selected = adds ? mView.Selected() : AgendaView::Numbers();
    const auto& run = mView.Scene().Runs()[hit.index];
    for (auto i = run.pieces.begin; i < run.pieces.end; ++i) {
        selected.insert(mView.ActivityOf(i).number);
    }
    mNumber = mView.ActivityOf(run.pieces.begin).number;
    mView.SetFocusOn(run.pieces.begin);
    mView.mWishes.select(selected);
}

void AgendaMouse::ShowRunOf(std::int64_t number)
{
    const auto& runs = mView.Scene().Runs();
    for (std::size_t run = 0; run < runs.size(); ++run) {
        for (auto i = runs[run].pieces.begin; i < runs[run].pieces.end; ++i) {
            if (mView.ActivityOf(i).number == number) {
                mView.ShowRun(run);
                return;
            }
        }
    }
}

void AgendaMouse::Move(const QMouseEvent& event)
{
    if (!mIsDown) {
        const auto hit = HitAt(event.position());
        ShowCursor(hit);
        FollowRest(hit);
        return;
    }
    const auto moved = mView.InScene(event.position()) - mFrom;
    if (!mHasMoved && moved.manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    mHasMoved = true;
    if (IsOnPiece(mHit)) {
        Drag(event);
    } else if (mHit.part != AgendaHit::Part::Label) {
        Band(event);
    }
}

void AgendaMouse::ShowCursor(const AgendaHit& hit) const
{
    const bool isEdge = hit.part == AgendaHit::Part::Start || hit.part == AgendaHit::Part::End;
    mView.viewport()->setCursor(isEdge ? Qt::SizeVerCursor : Qt::ArrowCursor);
}

void AgendaMouse::Drag(const QMouseEvent& event)
{
    // Beside the days is the panel, whose projects take what is dropped on them.
    if (event.position().x() < 0) {
        mTimes.reset();
        mView.ShowGhost(std::nullopt, {});
        mView.viewport()->setCursor(Qt::DragCopyCursor);
        return;
    }
    mView.viewport()->setCursor(PartOf(mHit) == DragGesture::Part::Whole ? Qt::ClosedHandCursor : Qt::SizeVerCursor);
    const auto isFine = event.modifiers().testFlag(Qt::ShiftModifier);
    const auto place = mView.InScene(ScrolledTo(event.position()));
    mTimes = mDrag->To(mView.Scene().Hits().MomentNear(place.x(), place.y()),
        isFine ? DragGesture::Step::Fine : DragGesture::Step::Usual);
    mView.ShowGhost(mTimes, {});
    mView.SayTimes(*mTimes, mDrag->Before());
}

QPointF AgendaMouse::ScrolledTo(const QPointF& place) const
{
    const auto box = QRectF(mView.viewport()->rect());
    const auto y = std::clamp(place.y(), box.top(), box.bottom() - 1);
    auto* bar = mView.verticalScrollBar();
    bar->setValue(bar->value() + static_cast<int>(place.y() - y));
    return { std::clamp(place.x(), box.left(), box.right() - 1), y };
}

void AgendaMouse::Band(const QMouseEvent& event)
{
    const auto band = QRectF(mFrom, mView.InScene(ScrolledTo(event.position()))).normalized();
    mView.ShowGhost(std::nullopt, band);
    auto selected = mKept;
    const PixelBox box { band.x(), band.y(), band.width(), band.height() };
    for (const auto place : mView.Scene().Hits().ActivitiesIn(box)) {
        selected.insert(mView.Scene().Activities()[place].number);
    }
    mView.ShowSelected(selected);
}

void AgendaMouse::Release(const QMouseEvent& event)
{
    if (!mIsDown || event.button() != Qt::LeftButton) {
        return;
    }
    const bool hasMoved = mHasMoved;
    const auto times = mTimes;
    const auto before = mDrag ? mDrag->Before() : TimeSpan();
    Forget();
    if (!hasMoved) {
        if (IsOnPiece(mHit) && mIsAloneOnRelease) {
            mView.mWishes.select({ mNumber });
        } else if (mHit.part == AgendaHit::Part::Label && !event.modifiers().testFlag(Qt::ControlModifier)) {
            // Others may have come since the press.
            ShowRunOf(mNumber);
        }
    } else if (!IsOnPiece(mHit)) {
        mView.mWishes.select(mView.Selected());
    } else if (!times) {
        mView.mWishes.drop(event.globalPosition().toPoint());
    } else if (*times != before) {
        mView.mWishes.move(mNumber, *times);
    }
    ShowCursor(HitAt(event.position()));
}

void AgendaMouse::DoubleClick(const QMouseEvent& event)
{
    const auto hit = HitAt(event.position());
    if (event.button() != Qt::LeftButton) {
        return;
    }
    if (IsOnPiece(hit)) {
        mView.mWishes.open(mView.ActivityOf(hit.index).number);
    } else if (hit.part == AgendaHit::Part::Gap || (hit.part == AgendaHit::Part::Free && !mView.HidesAny())) {
        mView.mWishes.create(hit.span);
    }
}

std::optional<std::size_t> AgendaMouse::RunAt(const AgendaHit& hit) const
{
    if (IsOnPiece(hit)) {
        return mView.Scene().RunOf(hit.index);
    }
    return hit.part == AgendaHit::Part::Label ? std::optional(hit.index) : std::nullopt;
}

void AgendaMouse::FollowRest(const AgendaHit& hit) const
{
    if (auto* bubble = mView.Bubble(); bubble != nullptr && RunAt(hit) == mRested) {
        bubble->Stay();
    } else if (bubble != nullptr) {
        bubble->LeaveSoon();
    }
}

void AgendaMouse::EndRest() const
{
    if (mView.Bubble() != nullptr && mView.Bubble()->IsResting()) {
        mView.Bubble()->close();
    }
}

void AgendaMouse::ToolTip(const QHelpEvent& event)
{
    const auto hit = HitAt(event.pos());
    if (const auto run = RunAt(hit)) {
        if (mView.Bubble() == nullptr || mRested != *run) {
            mRested = *run;
            mView.ShowRun(*run, ShortBubble::Opening::Resting);
        }
        return;
    }
    const auto& scene = mView.Scene();
    QString text;
    PixelBox box;
    if (IsOnPiece(hit)) {
        text = mView.ToolTipOf(mView.ActivityOf(hit.index));
        box = scene.Geometry().BoxOf(scene.Layout().Pieces()[hit.index]);
    } else if (hit.part == AgendaHit::Part::Gap) {
        text = ToQt(GapText(scene.Gaps()[hit.index].minutes));
        box = { static_cast<double>(event.x()), mView.InScene(event.pos()).y(), 1, 1 };
    }
    QToolTip::showText(event.globalPos(), PlainToolTip(text), mView.viewport(), mView.InView(box).toAlignedRect());
}

bool AgendaMouse::Key(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Escape && mView.Bubble() != nullptr) {
        EndRest();
        return true;
    }
    if (event.key() != Qt::Key_Escape || !mHasMoved) {
        return false;
    }
    const bool wasBand = !IsOnPiece(mHit);
    Forget();
    if (wasBand) {
        // The press has told that nothing is selected, unless it adds.
        mView.ShowSelected(mKept);
    }
    return true;
}

void AgendaMouse::Forget()
{
    mIsDown = false;
    mHasMoved = false;
    mDrag.reset();
    mTimes.reset();
    mView.ShowGhost(std::nullopt, {});
    mView.mWishes.say({});
}

}
