#pragma once

#include <QAccessible>
#include <QPointer>
#include <cstddef>

namespace tempodial {

class AgendaView;

/// An activity of an agenda as assistive programs see it, with what can be done to it.
class ActivityAccess final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    /// The place of a piece of the agenda.
    ActivityAccess(AgendaView& view, std::size_t piece);

    std::size_t Piece() const { return mPiece; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override { }
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

private:
    /// The view while it is there; it is a widget, which the toolkit tells the end of.
    QPointer<QObject> mAlive;
    AgendaView& mView;
    std::size_t mPiece;
};

}
