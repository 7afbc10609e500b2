#include "desktop/qt/PaintedCell.h"

#include "desktop/qt/AccessVoice.h"
#include "desktop/qt/PaintedTable.h"

namespace tempodial {

PaintedCell::PaintedCell(QWidget& widget, const PaintedTable& table)
    : mWidget(&widget)
    , mTable(table)
{
}

void PaintedCell::TellChanges()
{
    std::pair words(text(QAccessible::Name), text(QAccessible::Description));
    const auto told = std::exchange(mTold, words);
    if (told && told->first != words.first) {
        QAccessibleEvent event(this, QAccessible::NameChanged);
        AccessVoice::Tell(event);
    }
    if (told && told->second != words.second) {
        QAccessibleEvent event(this, QAccessible::DescriptionChanged);
        AccessVoice::Tell(event);
    }
}

QAccessibleInterface* PaintedCell::parent() const
{
    return QAccessible::queryAccessibleInterface(mWidget.data());
}

QString PaintedCell::text(QAccessible::Text kind) const
{
    if (!isValid()) {
        return {};
    }
    switch (kind) {
    case QAccessible::Name:
        return Name();
    case QAccessible::Description:
        return Description();
    default:
        return {};
    }
}

QAccessible::State PaintedCell::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = mWidget.isNull() || !mWidget->isVisible();
    return state;
}

void* PaintedCell::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this) : nullptr;
}

QList<QAccessibleInterface*> PaintedCell::columnHeaderCells() const
{
    auto* head = isValid() ? mTable.HeadOf(columnIndex()) : nullptr;
    return head == nullptr ? QList<QAccessibleInterface*>() : QList { head };
}

}
