#pragma once

#include <QAccessible>
#include <QPointer>
#include <QWidget>
#include <optional>
#include <utility>

namespace tempodial {

class PaintedTable;

/// A cell of a table that a widget paints, as assistive programs see it.
class PaintedCell : public QAccessibleInterface, public QAccessibleTableCellInterface
{
public:
    /// The widget and its table; the table must live as long as this.
    PaintedCell(QWidget& widget, const PaintedTable& table);

    /// Tells of words that are others than when this was last called; at first it only takes them in.
    void TellChanges();

    bool isValid() const override { return !mWidget.isNull(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override { }
    QAccessible::Role role() const override { return QAccessible::Cell; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override { return state().selected; }
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }

protected:
    virtual QString Name() const { return {}; }
    virtual QString Description() const { return {}; }

private:
    /// The widget while it is there.
    QPointer<QWidget> mWidget;
    const PaintedTable& mTable;
    /// Name and description as they were told.
    std::optional<std::pair<QString, QString>> mTold;
};

}
