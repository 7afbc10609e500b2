#include "desktop/qt/ActivityListModel.h"

#include "desktop/DesktopStrings.h"
#include "desktop/ItemFields.h"
#include "desktop/qt/ProjectMark.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ShownLine.h"
#include "terminal/TerminalText.h"

#include <QFont>

namespace tempodial {

ActivityListModel::ActivityListModel(Desk& desk, QObject* parent)
    : QAbstractTableModel(parent)
    , mDesk(desk)
{
}

void ActivityListModel::Show(const std::vector<Activity>& activities, const TableViewLayout& layout, Coloured coloured)
{
    beginResetModel();
    const auto folded = mRows ? mRows->Folded() : std::set<std::string>();
    mValues.emplace(mDesk.Formats(), ItemFields(mDesk.Profile()), mDesk.ShownTitles());
    mLayout = layout;
    mActivities = &activities;
    mNumbers.clear();
    for (const auto& activity : activities) {
        mNumbers.push_back(activity.number);
    }
    mColoured = coloured;
    mRows.emplace(activities, mLayout, *mValues, folded);
    endResetModel();
}

void ActivityListModel::SetFolded(std::size_t row, bool isFolded)
{
    beginResetModel();
    mRows->SetFolded(mRows->Rows()[row].group, isFolded);
    endResetModel();
}

const Activity* ActivityListModel::ActivityOf(int row) const
{
    const auto& place = mRows->Rows()[static_cast<std::size_t>(row)].activity;
    return place ? &(*mActivities)[*place] : nullptr;
}

std::pair<std::int64_t, std::string> ActivityListModel::KeyOf(int row) const
{
    const auto& place = mRows->Rows()[static_cast<std::size_t>(row)].activity;
    return place ? std::pair(mNumbers[*place], std::string()) : std::pair(std::int64_t { 0 }, GroupOf(row)->key);
}

const ListGroup* ActivityListModel::GroupOf(int row) const
{
    const auto& it = mRows->Rows()[static_cast<std::size_t>(row)];
    return it.activity ? nullptr : &mRows->Groups()[it.group];
}

int ActivityListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(Count());
}

int ActivityListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mLayout.columns.size());
}

QVariant ActivityListModel::data(const QModelIndex& index, int role) const
{
    if (const auto* group = GroupOf(index.row())) {
        return HeadingData(*group, index.column(), role);
    }
    const auto& activity = *ActivityOf(index.row());
    const auto& column = mLayout.columns[static_cast<std::size_t>(index.column())];
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        const auto text = ShownLine(mValues->TextOf(activity, column.field));
        return role == Qt::ToolTipRole ? PlainToolTip(text) : text;
    }
    if (role == Qt::DecorationRole && index.column() == 0) {
        const auto& name = mColoured == Coloured::Project ? ProjectNameOf(activity) : activity.type;
        constexpr int MarkSide = 12;
        return ProjectMarkPicture(MarkSide, mDesk.StyleOf(mColoured, name));
    }
    if (role == Qt::TextAlignmentRole) {
        const auto isRight = column.alignment == TableColumn::Alignment::Right;
        const auto isLeft = column.alignment == TableColumn::Alignment::Left;
        return QVariant::fromValue(
            Qt::AlignVCenter | (isRight ? Qt::AlignRight : (isLeft ? Qt::AlignLeft : Qt::AlignHCenter)));
    }
    return {};
}

QVariant ActivityListModel::HeadingData(const ListGroup& group, int column, int role) const
{
    if (column == 0 && role == Qt::DisplayRole) {
        const auto text
            = GroupText(IsolatedLine(group.name), static_cast<std::int64_t>(group.activities.size()), group.minutes);
        return (group.isFolded ? QString("\u25b8 ") : QString("\u25be ")) + ToQt(text);
    }
    if (role == Qt::FontRole) {
        QFont bold;
        bold.setWeight(QFont::DemiBold);
        return bold;
    }
    if (role == Qt::BackgroundRole) {
        return ToQt(mDesk.Look().Colours().card);
    }
    return {};
}

QVariant ActivityListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        return ToQt(mLayout.columns[static_cast<std::size_t>(section)].heading);
    }
    return {};
}

}
