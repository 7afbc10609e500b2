#pragma once

#include "desktop/ShownLog.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/EmptyNote.h"
#include "review/ActivityGroup.h"

#include <QWidget>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

class QComboBox;
class QLabel;
class QProgressBar;
class QTreeWidget;

namespace tempodial {

/// The time without a project, the largest first: a group of activities at a time gets its project.
class SortOutView final : public QWidget
{
public:
    using Numbers = std::set<std::int64_t>;

    /// The log must live as long as this.
    SortOutView(Desk& desk, const ShownLog& log, QWidget* parent);

    std::function<void(const Numbers& numbers)> mSelect;
    std::function<void(std::int64_t number)> mOpen;
    /// The menu of what is selected, at a point of the screen.
    std::function<void(const QPoint& place)> mMenu;
    /// A key that means nothing to the view itself; true when it was taken.
    std::function<bool(QKeyEvent& event)> mKey;

    /// The log has changed, or how things look.
    void Follow();
    /// Selects the first group when none is.
    void Begin();
    const std::vector<ActivityGroup>& Groups() const { return mGroups; }
    QTreeWidget& List() { return *mList; }
    /// How much time is sorted out.
    QComboBox& Span() { return *mSpan; }
    /// Says why there is nothing.
    EmptyNote& Note() { return *mNote; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// Application and description.
    using GroupName = std::pair<std::string, std::string>;
    /// Where a person is in the list.
    struct Place
    {
        int row = 0;
        GroupName group;
        /// The number of one of the group; nothing when the whole group is meant.
        std::optional<std::int64_t> single;
    };

    void Fill();
    /// Opens the menu of the line at a place of the list.
    void ShowMenu(const QPoint& place);
    static GroupName NameOf(const ActivityGroup& group) { return { group.application, group.description }; }
    Place CurrentPlace() const;
    void GoBackTo(const Place& place);
    /// What the current line stands for.
    Numbers CurrentNumbers() const;
    void SelectCurrent();
    Numbers NumbersOf(const ActivityGroup& group) const;

    Desk& mDesk;
    const ShownLog& mLog;
    QLabel* mTitle;
    QComboBox* mSpan;
    QProgressBar* mLeft;
    QTreeWidget* mList;
    EmptyNote* mNote;
    std::vector<ActivityGroup> mGroups;
    bool mIsFilling = false;
    /// What was last selected here.
    Numbers mTold;
};

}
