#pragma once

#include <QAccessible>

namespace tempodial {

/// A table that a widget paints, as assistive programs see it; one in which nothing can be selected.
class PaintedTable : public QAccessibleTableInterface
{
public:
    /// What stands above a column; null for nothing.
    virtual QAccessibleInterface* HeadOf(int /*column*/) const { return nullptr; }

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QString rowDescription(int /*row*/) const override { return {}; }

    int selectedCellCount() const override { return 0; }
    QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    int selectedColumnCount() const override { return static_cast<int>(selectedColumns().size()); }
    int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int /*column*/) const override { return false; }
    bool isRowSelected(int /*row*/) const override { return false; }
    bool selectRow(int /*row*/) override { return false; }
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectRow(int /*row*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override { }
};

}
