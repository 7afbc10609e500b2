#include "desktop/qt/drive/AgendaPointer.h"

#include "desktop/DragGesture.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/MainWindow.h"
#include "driver/RequestError.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <algorithm>

namespace tempodial {

bool AgendaPointer::Reach(std::int64_t number, Date day)
{
    using LogView = DesktopSettings::View;
    const bool isAgenda = mWindow.ShownView() == LogView::Day || mWindow.ShownView() == LogView::Week;
    if (!isAgenda || !mWindow.Log().PlaceOf(number)) {
        mWindow.Show(LogView::Week, day);
    }
    const auto piece = PieceOf(number);
    if (!piece || !mWindow.Agenda().isVisible()) {
        return false;
    }
    mWindow.Agenda().SetFocusOn(piece);
    return PlaceOn(*piece).has_value();
}

void AgendaPointer::Click(std::int64_t number, Qt::KeyboardModifiers modifiers)
{
    QTest::mouseClick(mWindow.Agenda().viewport(), Qt::LeftButton, modifiers, PlaceOn(PieceOf(number).value()).value());
}

void AgendaPointer::DoubleClick(std::int64_t number)
{
    const auto place = PlaceOn(PieceOf(number).value()).value();
    auto* viewport = mWindow.Agenda().viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, {}, place);
    QTest::mouseDClick(viewport, Qt::LeftButton, {}, place);
}

bool AgendaPointer::Drag(std::int64_t number, const TimeSpan& times)
{
    const auto way = WayOf(PieceOf(number).value(), times);
    if (!way) {
        return false;
    }
    auto* viewport = mWindow.Agenda().viewport();
    const auto move = [viewport](const QPoint& place) {
        // With Shift it goes by minutes.
        QMouseEvent event(
            QEvent::MouseMove, place, viewport->mapToGlobal(place), Qt::NoButton, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(viewport, &event);
    };
    QTest::mousePress(viewport, Qt::LeftButton, {}, way->first);
    // What is moved by a little only is no drag, so it goes there by a way around.
    move(way->first + QPoint(0, 2 * QApplication::startDragDistance()));
    move(way->second);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, way->second);
    return true;
}

bool AgendaPointer::IsOneOfRun(std::int64_t number) const
{
    const auto piece = PieceOf(number).value();
    const auto& runs = mWindow.Agenda().Scene().Runs();
    return std::any_of(runs.begin(), runs.end(), [piece](const ShortRun& run) {
        return piece >= run.pieces.begin && piece < run.pieces.end && run.pieces.end - run.pieces.begin > 1;
    });
}

void AgendaPointer::Press(Qt::Key key)
{
    QTest::keyClick(&mWindow.Agenda(), key);
}

std::optional<std::size_t> AgendaPointer::PieceOf(std::int64_t number) const
{
    const auto& agenda = mWindow.Agenda();
    for (std::size_t piece = 0; piece < agenda.Scene().Layout().Pieces().size(); ++piece) {
        if (agenda.ActivityOf(piece).number == number) {
            return piece;
        }
    }
    return std::nullopt;
}

AgendaHit AgendaPointer::HitAt(const QPoint& place) const
{
    const auto inScene = mWindow.Agenda().InScene(place);
    return mWindow.Agenda().Scene().Hits().At(inScene.x(), inScene.y());
}

std::optional<std::pair<QPoint, QPoint>> AgendaPointer::WayOf(std::size_t piece, const TimeSpan& times) const
{
    constexpr int Columns = 64;
    const auto& activity = mWindow.Agenda().ActivityOf(piece);
    const TimeSpan before { activity.start, activity.end };
    const bool isWhole = SecondsBetween(before.start, before.end) == SecondsBetween(times.start, times.end);
    const bool isEnd = times.start == before.start;
    const auto from = PlaceOn(piece,
        isWhole     ? AgendaHit::Part::Body
            : isEnd ? AgendaHit::Part::End
                    : AgendaHit::Part::Start);
    if (!from || (!isWhole && !isEnd && times.end != before.end)) {
        return std::nullopt;
    }
    const DragGesture gesture(isWhole ? DragGesture::Part::Whole
            : isEnd                   ? DragGesture::Part::End
                                      : DragGesture::Part::Start,
        before, HitAt(*from).moment);
    const auto room = mWindow.Agenda().viewport()->rect();
    for (int column = 0; column < Columns; ++column) {
        for (int y = room.top(); y <= room.bottom(); ++y) {
            const QPoint to(room.left() + room.width() * column / Columns, y);
            if (gesture.To(HitAt(to).moment, DragGesture::Step::Fine) == times) {
                return std::pair(*from, to);
            }
        }
    }
    return std::nullopt;
}

std::optional<QPoint> AgendaPointer::PlaceOn(std::size_t piece, AgendaHit::Part part) const
{
    const auto& scene = mWindow.Agenda().Scene();
    const auto box = mWindow.Agenda().InView(scene.Geometry().BoxOf(scene.Layout().Pieces()[piece])).toRect();
    const auto seen = box.intersected(mWindow.Agenda().viewport()->rect());
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        const QPoint place(seen.center().x(), y);
        if (const auto hit = HitAt(place); hit.part == part && hit.index == piece) {
            return place;
        }
    }
    return std::nullopt;
}

std::optional<QPoint> AgendaPointer::PlaceOn(std::size_t piece) const
{
    const auto& agenda = mWindow.Agenda();
    const auto& scene = agenda.Scene();
    const auto box = agenda.InView(scene.Geometry().BoxOf(scene.Layout().Pieces()[piece]));
    const auto seen = box.intersected(QRectF(agenda.viewport()->rect()));
    for (const auto& place : { seen.center(), seen.topLeft(), seen.bottomRight() }) {
        const auto hit = HitAt(place.toPoint());
        const bool isOnPiece = hit.part == AgendaHit::Part::Body || hit.part == AgendaHit::Part::Start
            || hit.part == AgendaHit::Part::End;
        if (!seen.isEmpty() && isOnPiece && hit.index == piece) {
            return place.toPoint();
        }
    }
    return std::nullopt;
}

}
