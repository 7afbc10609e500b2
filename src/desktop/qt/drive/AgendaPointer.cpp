#include "desktop/qt/drive/AgendaPointer.h"

#include "desktop/qt/AgendaView.h"
#include "desktop/qt/MainWindow.h"
#include "driver/RequestError.h"

#include <QTest>

namespace tempodial {

bool AgendaPointer::Reach(std::int64_t number, Date day)
{
    if (!mWindow.Log().PlaceOf(number)) {
        mWindow.Show(DesktopSettings::View::Week, day);
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

std::optional<QPoint> AgendaPointer::PlaceOn(std::size_t piece) const
{
    const auto& agenda = mWindow.Agenda();
    const auto& scene = agenda.Scene();
    const auto box = agenda.InView(scene.Geometry().BoxOf(scene.Layout().Pieces()[piece]));
    const auto seen = box.intersected(QRectF(agenda.viewport()->rect()));
    for (const auto& place : { seen.center(), seen.topLeft(), seen.bottomRight() }) {
        const auto inScene = agenda.InScene(place.toPoint());
        const auto hit = scene.Hits().At(inScene.x(), inScene.y());
        const bool isOnPiece = hit.part == AgendaHit::Part::Body || hit.part == AgendaHit::Part::Start
            || hit.part == AgendaHit::Part::End;
        if (!seen.isEmpty() && isOnPiece && hit.index == piece) {
            return place.toPoint();
        }
    }
    return std::nullopt;
}

}
