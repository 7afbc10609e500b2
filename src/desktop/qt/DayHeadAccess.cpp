#include "desktop/qt/DayHeadAccess.h"

#include "desktop/qt/Afterwards.h"
#include "desktop/qt/AgendaView.h"

#include <QStringList>

namespace tempodial {

DayHeadAccess::DayHeadAccess(AgendaView& view, const PaintedTable& table, int day)
    : ActionCell(view, table)
    , mView(view)
    , mDay(day)
{
}

QString DayHeadAccess::Name() const
{
    return mView.Head().Days()[static_cast<std::size_t>(mDay)].spoken;
}

QString DayHeadAccess::Description() const
{
    return mView.DescribedDay(mDay);
}

QRect DayHeadAccess::rect() const
{
    if (!isValid()) {
        return {};
    }
    const auto& head = mView.Head();
    const auto& day = head.Days()[static_cast<std::size_t>(mDay)];
    const QRectF box(day.left, 0, day.width, head.height());
    return { head.mapToGlobal(box.topLeft().toPoint()), box.size().toSize() };
}

QStringList DayHeadAccess::actionNames() const
{
    return { pressAction() };
}

void DayHeadAccess::doAction(const QString& name)
{
    if (name == pressAction() && isValid()) {
        // What is shown then is told before this is let go of.
        Afterwards(mView, [view = &mView, day = mDay] { view->Head().Choose(day); });
    }
}

}
