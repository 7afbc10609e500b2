#pragma once

#include "base/Date.h"
#include "desktop/qt/ActionCell.h"

namespace tempodial {

class MiniMonth;

/// A day of the month in small as assistive programs see it: its date and its time.
class MonthDayAccess final : public ActionCell
{
public:
    MonthDayAccess(MiniMonth& month, const PaintedTable& table, Date day);

    bool isValid() const override;
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
    MiniMonth& mMonth;
    Date mDay;
};

}
