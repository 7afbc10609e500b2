#pragma once

#include "desktop/qt/PaintedCell.h"

namespace tempodial {

/// A place of a painted table where nothing is.
class BlankCell final : public PaintedCell
{
public:
    BlankCell(QWidget& widget, const PaintedTable& table, int row, int column)
        : PaintedCell(widget, table)
        , mRow(row)
        , mColumn(column)
    {
    }

    QRect rect() const override { return {}; }
    int rowIndex() const override { return mRow; }
    int columnIndex() const override { return mColumn; }

private:
    int mRow;
    int mColumn;
};

}
