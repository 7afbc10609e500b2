#pragma once

#include "desktop/ShownLog.h"
#include "desktop/qt/Desk.h"
#include "review/ActivityGroup.h"

#include <QWidget>
#include <cstdint>
#include <functional>
#include <set>
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
    void Fill();
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
