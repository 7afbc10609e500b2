#include "desktop/qt/SortOutView.h"

#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/RoomyRows.h"
#include "desktop/qt/ShownLine.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QTreeWidget>
#include <algorithm>

namespace tempodial {

namespace {

/// Where an activity's number is kept in its line.
constexpr int NumberRole = Qt::UserRole;

}

SortOutView::SortOutView(Desk& desk, const ShownLog& log, QWidget* parent)
    : QWidget(parent)
    , mDesk(desk)
    , mLog(log)
    , mTitle(new QLabel(this))
    , mSpan(new QComboBox(this))
    , mLeft(new QProgressBar(this))
    , mList(new QTreeWidget(this))
    , mNote(new EmptyNote(*mList))
{
    constexpr int Margin = 16;
    constexpr int BarHeight = 8;
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, 0);
    layout->setSpacing(Margin / 2);
    auto* top = new QHBoxLayout;
    top->addWidget(mTitle, 1);
    mSpan->addItems({ "A week", "A month" });
    mSpan->setAccessibleName("Days to sort out");
    connect(mSpan, &QComboBox::activated, this, [this](int span) {
        mDesk.Change(
            [span](DesktopSettings& settings) { settings.sortOutSpan = static_cast<DesktopSettings::ListSpan>(span); });
    });
    top->addWidget(mSpan);
    layout->addLayout(top);
    layout->addWidget(mLeft);
    layout->addWidget(mList, 1);
    mLeft->setTextVisible(false);
    mLeft->setFixedHeight(BarHeight);
    mLeft->setAccessibleName("Time without a project");
    mList->setHeaderLabels({ "Time", "Application", "Description", "Times", "Last" });
    mList->setFrameShape(QFrame::NoFrame);
    mList->setUniformRowHeights(true);
    mList->setItemDelegate(new RoomyRows(mList));
    mList->setAllColumnsShowFocus(true);
    mList->setAccessibleName("Without a project, largest first");
    mList->setObjectName("sort-out");
    mList->installEventFilter(this);
    mList->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(mList, &QWidget::customContextMenuRequested, this, [this](const QPoint& place) { ShowMenu(place); });
    connect(mList, &QTreeWidget::currentItemChanged, this, [this] { SelectCurrent(); });
    connect(mList, &QTreeWidget::itemDoubleClicked, this, [this](const QTreeWidgetItem* item) {
        if (item->parent() != nullptr) {
            mOpen(item->data(0, NumberRole).toLongLong());
        }
    });
}

void SortOutView::ShowMenu(const QPoint& place)
{
    // Beside the lines there is nothing to do anything with.
    if (auto* item = mList->itemAt(place)) {
        mList->setCurrentItem(item);
        SelectCurrent();
        mMenu(mList->viewport()->mapToGlobal(place));
    }
}

void SortOutView::Follow()
{
    mSpan->setCurrentIndex(static_cast<int>(mDesk.Settings().sortOutSpan));
    auto title = font();
    title.setWeight(QFont::DemiBold);
    mTitle->setFont(title);
    const auto total = mLog.Sums().total;
    const auto unassigned = mLog.UnassignedMinutes();
    mTitle->setText(total == 0 ? QString()
            : unassigned == 0  ? QString("All of these days has a project.")
                               : ToQt("No project: " + LengthText(unassigned) + " of " + LengthText(total)));
    mLeft->setRange(0, static_cast<int>(std::max<std::int64_t>(total, 1)));
    mLeft->setValue(static_cast<int>(unassigned));
    Fill();
}

void SortOutView::Fill()
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    const auto current = CurrentPlace();
    std::set<GroupName> expanded;
    for (int row = 0; row < mList->topLevelItemCount(); ++row) {
        if (mList->topLevelItem(row)->isExpanded()) {
            expanded.insert(NameOf(mGroups[static_cast<std::size_t>(row)]));
        }
    }
    mGroups = ActivityGroup::Unassigned([this](const std::function<void(const Activity& activity)>& take) {
        std::for_each(mLog.Activities().begin(), mLog.Activities().end(), take);
    });
    mIsFilling = true;
    mList->clear();
    for (const auto& group : mGroups) {
        auto* item = new QTreeWidgetItem(mList);
        const auto isHidden = mDesk.ShownTitles() == Titles::Hidden;
        item->setText(0, ToQt(LengthText(group.minutes)));
        item->setText(1, ShownLine(group.application));
        item->setText(2, isHidden ? QString() : ShownLine(group.description));
        item->setText(3, ToQt(ActivitiesText(group.times)));
        item->setText(4, ToQt(WeekdayText(group.last.Weekday()) + " " + mDesk.Formats()->ShortTime(group.last)));
        for (const auto& activity : mLog.Activities()) {
            if (IsUnassigned(activity) && activity.type == group.application
                && activity.description == group.description) {
                auto* single = new QTreeWidgetItem(item);
                single->setText(0, ToQt(LengthText(activity.duration)));
                single->setText(2, ShownLine(words.Summary(activity, mLog.Days())));
                single->setData(0, NumberRole, static_cast<qlonglong>(activity.number));
            }
        }
        item->setExpanded(expanded.count(NameOf(group)) > 0);
    }
    for (int column = 0; column < mList->columnCount(); ++column) {
        mList->resizeColumnToContents(column);
    }
    GoBackTo(current);
    mIsFilling = false;
    if (mList->currentItem() != nullptr && CurrentNumbers() != mTold) {
        // This may run during what has changed the log.
        QTimer::singleShot(0, this, [this] { SelectCurrent(); });
    }
}

SortOutView::Place SortOutView::CurrentPlace() const
{
    auto* item = mList->currentItem();
    if (item == nullptr) {
        return {};
    }
    auto* group = item->parent() != nullptr ? item->parent() : item;
    Place place;
    place.row = mList->indexOfTopLevelItem(group);
    place.group = NameOf(mGroups[static_cast<std::size_t>(place.row)]);
    if (group != item) {
        place.single = item->data(0, NumberRole).toLongLong();
    }
    return place;
}

void SortOutView::GoBackTo(const Place& place)
{
    if (mGroups.empty()) {
        return;
    }
    const auto found = std::find_if(
        mGroups.begin(), mGroups.end(), [&place](const ActivityGroup& group) { return NameOf(group) == place.group; });
    // The next group takes the place of one that has got its project.
    const auto row = found != mGroups.end() ? static_cast<int>(found - mGroups.begin())
                                            : std::min(place.row, static_cast<int>(mGroups.size()) - 1);
    auto* item = mList->topLevelItem(row);
    for (int i = 0; place.single && i < item->childCount(); ++i) {
        if (item->child(i)->data(0, NumberRole).toLongLong() == *place.single) {
            mList->setCurrentItem(item->child(i));
            return;
        }
    }
    mList->setCurrentItem(item);
}

SortOutView::Numbers SortOutView::CurrentNumbers() const
{
    auto* item = mList->currentItem();
    if (item == nullptr) {
        return {};
    }
    if (item->parent() != nullptr) {
        return { item->data(0, NumberRole).toLongLong() };
    }
    return NumbersOf(mGroups[static_cast<std::size_t>(mList->indexOfTopLevelItem(item))]);
}

void SortOutView::Begin()
{
    SelectCurrent();
    mList->setFocus();
}

SortOutView::Numbers SortOutView::NumbersOf(const ActivityGroup& group) const
{
    Numbers numbers;
    for (const auto& activity : mLog.Activities()) {
        if (IsUnassigned(activity) && activity.type == group.application && activity.description == group.description) {
            numbers.insert(activity.number);
        }
    }
    return numbers;
}

void SortOutView::SelectCurrent()
{
    if (mIsFilling || !isVisible()) {
        return;
    }
    mTold = CurrentNumbers();
    mSelect(mTold);
}

bool SortOutView::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        auto& key = static_cast<QKeyEvent&>(*event); // NOLINT(cppcoreguidelines-pro-type-static-cast-downcast)
        auto* item = mList->currentItem();
        if (key.key() == Qt::Key_Space && item != nullptr) {
            item->setExpanded(!item->isExpanded());
            return true;
        }
        if (key.key() == Qt::Key_S && item != nullptr) {
            // Later: the next one.
            if (auto* next = mList->itemBelow(item)) {
                mList->setCurrentItem(next);
            }
            return true;
        }
        return mKey(key);
    }
    return QWidget::eventFilter(object, event);
}

}
