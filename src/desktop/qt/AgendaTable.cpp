#include "desktop/qt/AgendaTable.h"

#include "desktop/qt/ActivityAccess.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/BlankCell.h"
#include "desktop/qt/DayHeadAccess.h"

#include <QLabel>
#include <algorithm>
#include <map>

namespace tempodial {

AgendaTable::Key AgendaTable::KeyOf(std::size_t piece) const
{
    return { mView.ActivityOf(piece).number, mView.Scene().Layout().Pieces()[piece].day };
}

std::vector<AgendaTable::Key> AgendaTable::Shown() const
{
    std::vector<Key> shown;
    for (std::size_t i = 0; i < mView.Scene().Layout().Pieces().size(); ++i) {
        shown.push_back(KeyOf(i));
    }
    return shown;
}

bool AgendaTable::Follow()
{
    auto shown = Shown();
    const bool hasOtherDays = mView.Scene().Days() != mDays;
    const bool isOther = hasOtherDays || shown != mShown;
    mDays = mView.Scene().Days();
    mShown = std::move(shown);
    if (isOther) {
        std::map<Key, std::size_t> places;
        for (std::size_t i = 0; i < mShown.size(); ++i) {
            places.emplace(mShown[i], i);
        }
        mActivities.DropIf([&](const Key& key) { return hasOtherDays || !places.contains(key); });
        mActivities.ForEach(
            [&](const Key& key, PaintedCell& cell) { static_cast<ActivityAccess&>(cell).MoveTo(places.at(key)); });
        mHeads.DropIf([&](int) { return hasOtherDays; });
        mBlanks.DropIf([](const auto&) { return true; });
    }
    const auto tell = [](const auto&, PaintedCell& cell) { cell.TellChanges(); };
    mActivities.ForEach(tell);
    mHeads.ForEach(tell);
    return isOther;
}

QAccessibleInterface* AgendaTable::CellOf(std::size_t piece) const
{
    return mActivities.Get(KeyOf(piece), [&] { return new ActivityAccess(mView, *this, piece); });
}

QAccessibleInterface* AgendaTable::HeadOf(int column) const
{
    return IsDay(column) ? mHeads.Get(column, [&] { return new DayHeadAccess(mView, *this, column); }) : nullptr;
}

QAccessibleInterface* AgendaTable::summary() const
{
    return mView.Note().isHidden() ? nullptr : QAccessible::queryAccessibleInterface(&mView.Note());
}

QAccessibleInterface* AgendaTable::cellAt(int row, int column) const
{
    const bool isInside = IsDay(column) && row >= 0 && row < rowCount();
    const auto pieces = isInside ? OfColumn(column) : Pieces();
    if (isInside && static_cast<std::size_t>(row) < pieces.size()) {
        return CellOf(pieces[static_cast<std::size_t>(row)]);
    }
    // The toolkit's bridge asks for places that no table has, too, and takes null for a cell.
    const auto place = isInside ? std::pair(row, column) : std::pair(-1, -1);
    return mBlanks.Get(place, [&] { return new BlankCell(mView, *this, place.first, place.second); });
}

int AgendaTable::columnCount() const
{
    return mView.Scene().Layout().Days();
}

int AgendaTable::rowCount() const
{
    std::size_t most = 0;
    for (int day = 0; day < columnCount(); ++day) {
        most = std::max(most, OfColumn(day).size());
    }
    return static_cast<int>(most);
}

QString AgendaTable::columnDescription(int column) const
{
    return IsDay(column) ? HeadOf(column)->text(QAccessible::Name) : QString();
}

AgendaTable::Pieces AgendaTable::OfColumn(int column) const
{
    Pieces pieces;
    if (IsDay(column)) {
        const auto range = mView.Scene().Layout().OfDay(column);
        for (auto i = range.begin; i < range.end; ++i) {
            pieces.push_back(i);
        }
    }
    return pieces;
}

AgendaTable::Pieces AgendaTable::OfRow(int row) const
{
    Pieces pieces;
    for (int day = 0; day < columnCount() && row >= 0; ++day) {
        const auto range = mView.Scene().Layout().OfDay(day);
        if (const auto piece = range.begin + static_cast<std::size_t>(row); piece < range.end) {
            pieces.push_back(piece);
        }
    }
    return pieces;
}

bool AgendaTable::IsSelected(std::size_t piece) const
{
    return mView.Selected().contains(mView.ActivityOf(piece).number);
}

bool AgendaTable::AreSelected(const Pieces& pieces) const
{
    return !pieces.empty()
        && std::all_of(pieces.begin(), pieces.end(), [this](std::size_t piece) { return IsSelected(piece); });
}

bool AgendaTable::Select(const Pieces& pieces, bool isSelected)
{
    auto selected = mView.Selected();
    for (const auto piece : pieces) {
        if (isSelected) {
            selected.insert(mView.ActivityOf(piece).number);
        } else {
            selected.erase(mView.ActivityOf(piece).number);
        }
    }
    if (!pieces.empty()) {
        mView.mWishes.select(selected);
    }
    return !pieces.empty();
}

int AgendaTable::selectedCellCount() const
{
    int count = 0;
    for (std::size_t i = 0; i < mView.Scene().Layout().Pieces().size(); ++i) {
        count += IsSelected(i) ? 1 : 0;
    }
    return count;
}

QList<QAccessibleInterface*> AgendaTable::selectedCells() const
{
    QList<QAccessibleInterface*> cells;
    for (std::size_t i = 0; i < mView.Scene().Layout().Pieces().size(); ++i) {
        if (IsSelected(i)) {
            cells.append(CellOf(i));
        }
    }
    return cells;
}

QList<int> AgendaTable::selectedColumns() const
{
    QList<int> columns;
    for (int column = 0; column < columnCount(); ++column) {
        if (isColumnSelected(column)) {
            columns.append(column);
        }
    }
    return columns;
}

QList<int> AgendaTable::selectedRows() const
{
    QList<int> rows;
    for (int row = 0; row < rowCount(); ++row) {
        if (isRowSelected(row)) {
            rows.append(row);
        }
    }
    return rows;
}

}
