#include "desktop/qt/AccessFactory.h"

#include "desktop/qt/AgendaAccess.h"
#include "desktop/qt/MiniMonth.h"
#include "desktop/qt/MonthAccess.h"

#include <QFrame>

namespace tempodial {

namespace {

/// Widgets of the toolkit's plainest kinds, which have no role by themselves.
QAccessibleInterface* MakePlainAccess(QWidget& widget)
{
    if (widget.windowType() == Qt::Window) {
        return new QAccessibleWidget(&widget, QAccessible::Window);
    }
    return widget.accessibleName().isEmpty() ? nullptr : new QAccessibleWidget(&widget, QAccessible::Grouping);
}

QAccessibleInterface* MakeAccess(const QString& /*className*/, QObject* object)
{
    const auto* kind = object->metaObject();
    if (auto* view = dynamic_cast<AgendaView*>(object)) {
        return new AgendaAccess(*view);
    }
    if (auto* month = dynamic_cast<MiniMonth*>(object)) {
        return new MonthAccess(*month);
    }
    const bool isPlain = kind == &QWidget::staticMetaObject || kind == &QFrame::staticMetaObject;
    auto* widget = isPlain ? qobject_cast<QWidget*>(object) : nullptr;
    return widget == nullptr ? nullptr : MakePlainAccess(*widget);
}

}

void InstallAccess()
{
    QAccessible::installFactory(MakeAccess);
}

}
