#include "desktop/qt/EffectModel.h"

#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ShownLine.h"
#include "terminal/TerminalText.h"

#include <array>

namespace tempodial {

EffectModel::EffectModel(Desk& desk, QObject* parent)
    : QAbstractTableModel(parent)
    , mDesk(desk)
{
}

void EffectModel::Show(const std::vector<Activity>& activities)
{
    beginResetModel();
    mActivities = &activities;
    mCount = static_cast<int>(activities.size());
    endResetModel();
}

void EffectModel::ShowMore()
{
    const auto count = static_cast<int>(mActivities->size());
    if (count > mCount) {
        beginInsertRows({}, mCount, count - 1);
        mCount = count;
        endInsertRows();
    }
}

int EffectModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : mCount;
}

int EffectModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QVariant EffectModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::ToolTipRole) {
        return PlainToolTip(data(index, Qt::DisplayRole).toString());
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    const auto& activity = ActivityOf(index.row());
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    switch (index.column()) {
    case Title:
        return ShownLine(words.Title(activity));
    case When:
        return ToQt(IsolatedLine(mDesk.Formats()->ShortDate(activity.start) + " "
            + mDesk.Formats()->ShortTime(activity.start) + PartSeparator + LengthText(activity.duration)));
    default:
        return ShownLine(ProjectNameOf(activity));
    }
}

QVariant EffectModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    constexpr std::array<const char*, Columns> names { "Activity", "When", "Project now" };
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
        return names[static_cast<std::size_t>(section)];
    }
    return {};
}

}
