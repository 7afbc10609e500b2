#include "desktop/qt/AccessFactory.h"

#include "desktop/qt/AgendaAccess.h"
#include "desktop/qt/MiniMonth.h"
#include "desktop/qt/MonthAccess.h"

namespace tempodial {

namespace {

QAccessibleInterface* MakeAccess(const QString& /*className*/, QObject* object)
{
    if (auto* view = dynamic_cast<AgendaView*>(object)) {
        return new AgendaAccess(*view);
    }
    if (auto* month = dynamic_cast<MiniMonth*>(object)) {
        return new MonthAccess(*month);
    }
    return nullptr;
}

}

void InstallAccess()
{
    QAccessible::installFactory(MakeAccess);
}

}
