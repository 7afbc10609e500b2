#pragma once

#include "desktop/qt/ActionCell.h"

namespace tempodial {

class AgendaView;

/// The head of a day of an agenda as assistive programs see it: which day, how long, and where the time went.
class DayHeadAccess final : public ActionCell
{
public:
    DayHeadAccess(AgendaView& view, const PaintedTable& table, int day);

    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ColumnHeader; }

    int columnIndex() const override { return mDay; }
    /// Above all rows.
    int rowIndex() const override { return -1; }

    QStringList actionNames() const override;
    void doAction(const QString& name) override;

protected:
    QString Name() const override;
    QString Description() const override;

private:
    AgendaView& mView;
    int mDay;
};

}
