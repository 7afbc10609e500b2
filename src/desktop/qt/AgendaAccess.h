#pragma once

#include "desktop/qt/AgendaTable.h"
#include "desktop/qt/AgendaView.h"

#include <QAccessibleWidget>
#include <cstddef>
#include <optional>

namespace tempodial {

/// An agenda as assistive programs see it: the heads of its days, its activities by day and time, and what it says when
/// there are none. Each is made when it is asked for.
class AgendaAccess final : public QAccessibleWidget
{
public:
    explicit AgendaAccess(AgendaView& view);
    ~AgendaAccess() override;
    AgendaAccess(const AgendaAccess&) = delete;
    AgendaAccess& operator=(const AgendaAccess&) = delete;

    /// Tells which piece has the focus of a view, or that the view itself has it.
    static void TellFocus(AgendaView& view);
    /// Tells what has been selected, and what isn't any more.
    static void TellSelection(AgendaView& view, const AgendaView::Numbers& before);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

private:
    /// The place of a piece among the children.
    static int IndexOf(const AgendaView& view, std::size_t piece);

    AgendaView& View() const;
    /// The view shows other activities, or other words.
    void Follow();

    AgendaTable mTable;
};

}
