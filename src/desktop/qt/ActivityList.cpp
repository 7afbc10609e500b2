#include "desktop/qt/ActivityList.h"

#include "desktop/FieldNames.h"
#include "desktop/TableViewLayout.h"
#include "desktop/qt/RoomyRows.h"
#include "host/system/ExpatParser.h"
#include "platform/objectmodel/Views.h"
#include "session/WorkLogFolder.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <optional>

namespace tempodial {

namespace {

/// What the mark of its project takes of the first column.
constexpr int RoomOfMark = 24;

/// What is shown where the log has no table view that can be used.
TableViewLayout UsualLayout()
{
    TableViewLayout layout;
    const auto add = [&layout](std::string_view field, int width) {
        layout.columns.push_back({ std::string(field), std::string(field), width });
    };
    constexpr int Narrow = 140;
    constexpr int Wide = 320;
    add(StartField, Narrow);
    add(DurationField, Narrow);
    add(ApplicationField, Narrow);
    add(DescriptionField, Wide);
    layout.groups.push_back({ std::string(ProjectField) });
    layout.orders.push_back({ std::string(StartField) });
    return layout;
}

}

ActivityList::ActivityList(Desk& desk, QWidget* parent)
    : QTreeView(parent)
    , mDesk(desk)
    , mModel(new ActivityListModel(desk, this))
    , mNote(new EmptyNote(*this))
{
    setModel(mModel);
    setFrameShape(QFrame::NoFrame);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setItemDelegate(new RoomyRows(this));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAllColumnsShowFocus(true);
    setAccessibleName("Activities");
    setObjectName("list");
    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (const auto* activity = mModel->ActivityOf(index.row())) {
            mWishes.open(activity->number);
        }
    });
    connect(this, &QAbstractItemView::clicked, this, [this](const QModelIndex& index) {
        if (mModel->GroupOf(index.row()) != nullptr) {
            Fold(index.row());
        }
    });
    mIsShowing = false;
}

TableViewLayout ActivityList::Definition() const
{
    if (const auto workLog = WorkLogOf(mDesk.Profile())) {
        const auto views = workLog->Views();
        ExpatParser parser;
        for (std::int32_t i = 1; i <= views->Count(); ++i) {
            const auto view = views->Item(i);
            if (view->ViewType() == ViewType::Table) {
                if (auto layout = TableViewLayout::Read(view->XML(), parser)) {
                    return *layout;
                }
            }
        }
    }
    return UsualLayout();
}

void ActivityList::Show(const std::vector<Activity>& activities, Coloured coloured)
{
    const auto before = mModel->Layout().columns;
    const auto current = currentIndex().row();
    const auto key = current < 0 ? std::nullopt : std::optional(mModel->KeyOf(current));
    const auto scroll = verticalScrollBar()->value();
    mIsShowing = true;
    mModel->Show(activities, Definition(), coloured);
    Span();
    // The list is made anew, but who works in it goes on where they were.
    for (int row = 0; key && row < static_cast<int>(mModel->Count()); ++row) {
        if (mModel->KeyOf(row) == *key) {
            selectionModel()->setCurrentIndex(mModel->index(row, 0), QItemSelectionModel::NoUpdate);
            break;
        }
    }
    verticalScrollBar()->setValue(scroll);
    mIsShowing = false;
    Widen(before);
}

void ActivityList::Widen(const std::vector<TableColumn>& before)
{
    const auto& columns = mModel->Layout().columns;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        // What a person has dragged stays so until the view says something else.
        const bool isOther = columns.size() != before.size() || columns[i].field != before[i].field
            || columns[i].width != before[i].width;
        if (isOther && columns[i].width > 0) {
            header()->resizeSection(static_cast<int>(i), columns[i].width + (i == 0 ? RoomOfMark : 0));
        }
    }
}

void ActivityList::Span()
{
    for (int row = 0; row < static_cast<int>(mModel->Count()); ++row) {
        setFirstColumnSpanned(row, {}, mModel->GroupOf(row) != nullptr);
    }
}

void ActivityList::ShowSelected(const Numbers& numbers)
{
    QItemSelection rows;
    for (int row = 0; row < static_cast<int>(mModel->Count()); ++row) {
        const auto* activity = mModel->ActivityOf(row);
        if (activity != nullptr && numbers.count(activity->number) > 0) {
            rows.select(mModel->index(row, 0), mModel->index(row, mModel->columnCount({}) - 1));
        }
    }
    mIsShowing = true;
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
    if (!rows.isEmpty() && !currentIndex().isValid()) {
        selectionModel()->setCurrentIndex(rows.indexes().front(), QItemSelectionModel::NoUpdate);
    }
    mIsShowing = false;
}

void ActivityList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    if (mIsShowing) {
        return;
    }
    Numbers numbers;
    for (const auto& index : selectionModel()->selectedRows()) {
        if (const auto* activity = mModel->ActivityOf(index.row())) {
            numbers.insert(activity->number);
        }
    }
    mWishes.select(numbers);
}

void ActivityList::Fold(int row)
{
    const auto isFolded = mModel->GroupOf(row)->isFolded;
    mIsShowing = true;
    mModel->SetFolded(static_cast<std::size_t>(row), !isFolded);
    setCurrentIndex(mModel->index(row, 0));
    mIsShowing = false;
    Span();
}

void ActivityList::keyPressEvent(QKeyEvent* event)
{
    const auto row = currentIndex().row();
    const bool isHeading = row >= 0 && mModel->GroupOf(row) != nullptr;
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool folds = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right || isEnter;
    if (isHeading && folds) {
        const bool wantsFolded = isEnter ? !mModel->GroupOf(row)->isFolded : event->key() == Qt::Key_Left;
        if (mModel->GroupOf(row)->isFolded != wantsFolded) {
            Fold(row);
        }
    } else if (isEnter && row >= 0) {
        mWishes.open(mModel->ActivityOf(row)->number);
    } else if (!mWishes.key(*event)) {
        QTreeView::keyPressEvent(event);
    }
}

void ActivityList::contextMenuEvent(QContextMenuEvent* event)
{
    mWishes.menu(event->globalPos());
}

}
