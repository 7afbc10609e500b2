#include "desktop/qt/MonthAccess.h"

#include "desktop/qt/AccessVoice.h"
#include "desktop/qt/BlankCell.h"
#include "desktop/qt/MiniMonth.h"
#include "desktop/qt/MonthDayAccess.h"

#include <QStringList>

namespace tempodial {

namespace {

constexpr auto NextMonthAction = "Next Month";
constexpr auto PreviousMonthAction = "Previous Month";

}

MonthAccess::MonthAccess(MiniMonth& month)
    : QAccessibleWidget(&month, QAccessible::Table)
    , mFirst(month.First())
{
    month.mWhenFollowed = [this] { Follow(); };
}

MonthAccess::~MonthAccess()
{
    // A month that goes takes this with it.
    if (auto* month = dynamic_cast<MiniMonth*>(object())) {
        month->mWhenFollowed = nullptr;
    }
}

MiniMonth& MonthAccess::Month() const
{
    return dynamic_cast<MiniMonth&>(*object());
}

void MonthAccess::Follow()
{
    mDays.DropIf([this](Date day) { return !Month().PlaceOf(day); });
    if (std::exchange(mFirst, Month().First()) != Month().First()) {
        QAccessibleTableModelChangeEvent event(
            static_cast<QAccessibleInterface*>(this), QAccessibleTableModelChangeEvent::ModelReset);
        AccessVoice::Tell(event);
    }
    mDays.ForEach([](Date, PaintedCell& cell) { cell.TellChanges(); });
}

void MonthAccess::TellFocus(MiniMonth& month)
{
    if (month.hasFocus() && AccessVoice::IsHeard()) {
        QAccessibleEvent event(&month, QAccessible::Focus);
        if (const auto place = month.PlaceOf(month.Cursor())) {
            event.setChild(*place);
        }
        AccessVoice::Tell(event);
    }
}

int MonthAccess::childCount() const
{
    return rowCount() * columnCount();
}

QAccessibleInterface* MonthAccess::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    const auto day = Month().First().AddDays(index);
    return mDays.Get(day, [&] { return new MonthDayAccess(Month(), *this, day); });
}

int MonthAccess::indexOfChild(const QAccessibleInterface* child) const
{
    const auto* day = dynamic_cast<const MonthDayAccess*>(child);
    return day == nullptr || !day->isValid() ? -1 : day->rowIndex() * columnCount() + day->columnIndex();
}

QAccessibleInterface* MonthAccess::childAt(int x, int y) const
{
    const auto place = Month().mapFromGlobal(QPoint(x, y));
    for (int i = 0; i < childCount(); ++i) {
        if (Month().BoxOf(i).contains(place)) {
            return child(i);
        }
    }
    return nullptr;
}

QAccessibleInterface* MonthAccess::focusChild() const
{
    const auto place = Month().PlaceOf(Month().Cursor());
    return Month().hasFocus() && place ? child(*place) : QAccessibleWidget::focusChild();
}

void* MonthAccess::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* MonthAccess::cellAt(int row, int column) const
{
    if (row >= 0 && row < rowCount() && column >= 0 && column < columnCount()) {
        return child(row * columnCount() + column);
    }
    // The toolkit's bridge asks for places that no table has, too, and takes null for a cell.
    constexpr std::pair Nowhere(-1, -1);
    return mBlanks.Get(Nowhere, [&] { return new BlankCell(Month(), *this, Nowhere.first, Nowhere.second); });
}

int MonthAccess::columnCount() const
{
    return MiniMonth::DaysOfWeek;
}

int MonthAccess::rowCount() const
{
    return MiniMonth::Weeks;
}

QString MonthAccess::columnDescription(int column) const
{
    return Month().NameOfColumn(column);
}

QString MonthAccess::rowDescription(int row) const
{
    return Month().NameOfWeek(row);
}

QStringList MonthAccess::actionNames() const
{
    return QAccessibleWidget::actionNames() + QStringList { PreviousMonthAction, NextMonthAction };
}

void MonthAccess::doAction(const QString& name)
{
    if (name == NextMonthAction || name == PreviousMonthAction) {
        Month().Page(name == NextMonthAction ? 1 : -1);
    } else {
        QAccessibleWidget::doAction(name);
    }
}

}
