#pragma once

#include "desktop/ShownLog.h"
#include "desktop/qt/Desk.h"
#include "review/ActivityGroup.h"

#include <QWidget>
#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

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
    /// A key that means nothing to the view itself; true when it was taken.
    std::function<bool(QKeyEvent& event)> mKey;

    /// The log has changed, or how things look.
    void Follow();
    /// Selects the first group when none is.
    void Begin();
    const std::vector<ActivityGroup>& Groups() const { return mGroups; }
    QTreeWidget& List() { return *mList; }

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
    QProgressBar* mLeft;
    QTreeWidget* mList;
    std::vector<ActivityGroup> mGroups;
    bool mIsFilling = false;
    /// What was last selected here.
    Numbers mTold;
};

}
