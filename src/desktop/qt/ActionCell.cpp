#include "desktop/qt/ActionCell.h"

namespace tempodial {

void* ActionCell::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : PaintedCell::interface_cast(type);
}

}
