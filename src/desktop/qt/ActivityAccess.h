#pragma once

#include "desktop/qt/ActionCell.h"

#include <cstddef>

namespace tempodial {

class AgendaView;

/// An activity of an agenda as assistive programs see it, with what can be done to it.
class ActivityAccess final : public ActionCell
{
public:
    /// The place of a piece of the agenda.
    ActivityAccess(AgendaView& view, const PaintedTable& table, std::size_t piece);

    std::size_t Piece() const { return mPiece; }
    /// Its piece has another place.
    void MoveTo(std::size_t piece) { mPiece = piece; }

    bool isValid() const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::State state() const override;

    int columnIndex() const override;
    int rowIndex() const override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;

protected:
    QString Name() const override;
    QString Description() const override;

private:
    /// Where it is drawn in the viewport.
    QRectF Box() const;

    AgendaView& mView;
    std::size_t mPiece;
};

}
