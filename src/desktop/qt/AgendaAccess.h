#pragma once

#include <QAccessibleWidget>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace tempodial {

class AgendaView;

/// An agenda as assistive programs see it: a list of its activities by day and time, each made when it is asked for.
class AgendaAccess final : public QAccessibleWidget
{
public:
    explicit AgendaAccess(AgendaView& view);
    ~AgendaAccess() override;
    AgendaAccess(const AgendaAccess&) = delete;
    AgendaAccess& operator=(const AgendaAccess&) = delete;

    /// Lets the toolkit know of all agendas.
    static void Install();

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    /// Activities by number and day.
    using Pieces = std::vector<std::pair<std::int64_t, int>>;

    AgendaView& View() const;
    /// The agenda shows other activities: nothing that was asked for before stands for one of them any more.
    void Follow();
    Pieces Shown() const;
    void Forget();

    /// The activities that were asked for, by their pieces.
    mutable std::map<int, QAccessible::Id> mChildren;
    Pieces mPieces;
};

}
