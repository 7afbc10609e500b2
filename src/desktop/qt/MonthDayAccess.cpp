#include "desktop/qt/MonthDayAccess.h"

#include "desktop/qt/Afterwards.h"
#include "desktop/qt/MiniMonth.h"

#include <QStringList>

namespace tempodial {

MonthDayAccess::MonthDayAccess(MiniMonth& month, const PaintedTable& table, Date day)
    : ActionCell(month, table)
    , mMonth(month)
    , mDay(day)
{
}

bool MonthDayAccess::isValid() const
{
    return ActionCell::isValid() && mMonth.PlaceOf(mDay).has_value();
}

QString MonthDayAccess::Name() const
{
    return mMonth.SpokenOf(mDay);
}

QString MonthDayAccess::Description() const
{
    return mMonth.IsToday(mDay) ? "today" : "";
}

QRect MonthDayAccess::rect() const
{
    if (!isValid()) {
        return {};
    }
    const auto box = mMonth.BoxOf(*mMonth.PlaceOf(mDay));
    return { mMonth.mapToGlobal(box.topLeft().toPoint()), box.size().toSize() };
}

QAccessible::State MonthDayAccess::state() const
{
    auto state = ActionCell::state();
    if (!state.invalid) {
        state.focusable = true;
        state.focused = mMonth.hasFocus() && mMonth.Cursor() == mDay;
        state.selectable = true;
        state.selected = mMonth.IsShown(mDay);
    }
    return state;
}

int MonthDayAccess::columnIndex() const
{
    return isValid() ? *mMonth.PlaceOf(mDay) % MiniMonth::DaysOfWeek : -1;
}

int MonthDayAccess::rowIndex() const
{
    return isValid() ? *mMonth.PlaceOf(mDay) / MiniMonth::DaysOfWeek : -1;
}

QStringList MonthDayAccess::actionNames() const
{
    return { pressAction() };
}

void MonthDayAccess::doAction(const QString& name)
{
    if (name == pressAction()) {
        Afterwards(mMonth, [month = &mMonth, day = mDay] { month->mGoTo(day); });
    }
}

}
