#pragma once

#include "desktop/qt/ActivityListModel.h"
#include "desktop/qt/EmptyNote.h"
#include "host/windows/HostExplorer.h"

#include <QTreeView>
#include <cstdint>
#include <functional>
#include <set>
#include <vector>

namespace tempodial {

/// The activities as a list, as the definition of the product's table view says.
class ActivityList final : public QTreeView
{
public:
    using Numbers = std::set<std::int64_t>;

    /// What a person wants.
    struct Wishes
    {
        std::function<void(const Numbers& numbers)> select;
        std::function<void(std::int64_t number)> open;
        std::function<void(const QPoint& place)> menu;
        /// A key that means nothing to the list itself; true when it was taken.
        std::function<bool(QKeyEvent& event)> key;
    };

    ActivityList(Desk& desk, QWidget* parent);

    Wishes mWishes;

    /// Shows activities, which must live until others are shown.
    void Show(const std::vector<Activity>& activities, Coloured coloured);
    /// Says why there is nothing.
    EmptyNote& Note() { return *mNote; }
    void ShowSelected(const Numbers& numbers);
    const ActivityListModel& Model() const { return *mModel; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    /// The definition of the table view that the work log has.
    TableViewLayout Definition() const;
    void Fold(int row);
    void Span();
    /// Gives columns the widths that the view says, as far as it didn't say them before.
    void Widen(const std::vector<TableColumn>& before);

    Desk& mDesk;
    ActivityListModel* mModel;
    EmptyNote* mNote;
    /// True while what is selected is shown and not chosen.
    bool mIsShowing = true;
};

}
