#pragma once

#include "desktop/qt/AskedFor.h"
#include "desktop/qt/PaintedTable.h"
#include "review/Period.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace tempodial {

class AgendaView;

/// An agenda as a table: a column a day with its head, in it the activities by time, and nothing below them.
class AgendaTable final : public PaintedTable
{
public:
    /// The view must live as long as this.
    explicit AgendaTable(AgendaView& view)
        : mView(view)
    {
    }

    /// The agenda shows other activities or other words: tells the words, and lets go of what has gone. True when other
    /// activities are shown.
    bool Follow();
    /// The activity of a piece.
    QAccessibleInterface* CellOf(std::size_t piece) const;

    QAccessibleInterface* HeadOf(int column) const override;
    QAccessibleInterface* summary() const override;
    QAccessibleInterface* cellAt(int row, int column) const override;
    int columnCount() const override;
    int rowCount() const override;
    QString columnDescription(int column) const override;

    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override { return AreSelected(OfColumn(column)); }
    bool isRowSelected(int row) const override { return AreSelected(OfRow(row)); }
    bool selectColumn(int column) override { return Select(OfColumn(column), true); }
    bool selectRow(int row) override { return Select(OfRow(row), true); }
    bool unselectColumn(int column) override { return Select(OfColumn(column), false); }
    bool unselectRow(int row) override { return Select(OfRow(row), false); }

private:
    using Pieces = std::vector<std::size_t>;
    /// An activity by its number, and the day of its piece.
    using Key = std::pair<std::int64_t, int>;

    bool IsDay(int column) const { return column >= 0 && column < columnCount(); }
    Key KeyOf(std::size_t piece) const;
    std::vector<Key> Shown() const;
    Pieces OfColumn(int column) const;
    Pieces OfRow(int row) const;
    bool IsSelected(std::size_t piece) const;
    bool AreSelected(const Pieces& pieces) const;
    bool Select(const Pieces& pieces, bool isSelected);

    /// May have nothing to show yet, since the toolkit asks for this as soon as there is a view.
    AgendaView& mView;
    /// What was shown when this last followed.
    Period mDays;
    std::vector<Key> mShown;
    mutable AskedFor<Key> mActivities;
    mutable AskedFor<int> mHeads;
    mutable AskedFor<std::pair<int, int>> mBlanks;
};

}
