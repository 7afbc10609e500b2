#pragma once

#include "desktop/qt/PaintedCell.h"

namespace tempodial {

/// A cell of a painted table to which something can be done.
class ActionCell : public PaintedCell, public QAccessibleActionInterface
{
public:
    using PaintedCell::PaintedCell;

    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }
};

}
