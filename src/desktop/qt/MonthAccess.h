#pragma once

#include "base/Date.h"
#include "desktop/qt/AskedFor.h"
#include "desktop/qt/PaintedTable.h"

#include <QAccessibleWidget>
#include <utility>

namespace tempodial {

class MiniMonth;

/// The month in small as assistive programs see it: a table of weeks, each day made when it is asked for.
class MonthAccess final : public QAccessibleWidget, public PaintedTable
{
public:
    explicit MonthAccess(MiniMonth& month);
    ~MonthAccess() override;
    MonthAccess(const MonthAccess&) = delete;
    MonthAccess& operator=(const MonthAccess&) = delete;

    /// Tells which day the keys are on.
    static void TellFocus(MiniMonth& month);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* cellAt(int row, int column) const override;
    int columnCount() const override;
    int rowCount() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    MiniMonth& Month() const;
    /// The month, or the time of its days, has become another.
    void Follow();

    mutable AskedFor<Date> mDays;
    mutable AskedFor<std::pair<int, int>> mBlanks;
    /// The day at the upper left corner.
    Date mFirst;
};

}
