#pragma once

#include "base/Date.h"
#include "desktop/qt/PaintedCell.h"

namespace tempodial {

class MiniMonth;

/// A day of the month in small as assistive programs see it: its date and its time.
class MonthDayAccess final : public PaintedCell, public QAccessibleActionInterface
{
public:
    MonthDayAccess(MiniMonth& month, const PaintedTable& table, Date day);

    bool isValid() const override;
    QRect rect() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    int columnIndex() const override;
    int rowIndex() const override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

protected:
    QString Name() const override;
    QString Description() const override;

private:
    MiniMonth& mMonth;
    Date mDay;
};

}
