#include "desktop/qt/EffectModel.h"

#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/ShownLine.h"
#include "session/ProductFacts.h"
#include "terminal/TerminalText.h"

#include <QFont>
#include <array>
#include <utility>

namespace tempodial {

EffectModel::EffectModel(Desk& desk, QObject* parent)
    : QAbstractTableModel(parent)
    , mDesk(desk)
{
}

void EffectModel::Show(const RuleEffect& effect)
{
    beginResetModel();
    mEffect = &effect;
    mMoves = effect.Moves();
    mCount = static_cast<int>(effect.Changes().size());
    endResetModel();
}

void EffectModel::ShowMore()
{
    const auto count = static_cast<int>(mEffect->Changes().size());
    if (count == mCount) {
        return;
    }
    auto moves = mEffect->Moves();
    const auto gathered = static_cast<int>(moves.size());
    if (gathered > Gathered()) {
        beginInsertRows({}, Gathered(), gathered - 1);
        mMoves = std::move(moves);
        endInsertRows();
    } else {
        mMoves = std::move(moves);
    }
    beginInsertRows({}, gathered + mCount, gathered + count - 1);
    mCount = count;
    endInsertRows();
    dataChanged(index(0, 0), index(gathered - 1, Columns - 1));
}

const Activity* EffectModel::ActivityOf(int row) const
{
    return row < Gathered() ? nullptr : &mEffect->Changes()[static_cast<std::size_t>(row - Gathered())];
}

int EffectModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Gathered() + mCount;
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
    const auto* shown = ActivityOf(index.row());
    if (role == Qt::FontRole && shown == nullptr) {
        QFont bold;
        bold.setWeight(QFont::DemiBold);
        return bold;
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (shown == nullptr) {
        return MoveText(mMoves[static_cast<std::size_t>(index.row())], index.column());
    }
    const auto& activity = *shown;
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

QVariant EffectModel::MoveText(const ProjectMoves::Move& move, int column)
{
    switch (column) {
    case Title:
        return QString::number(move.activities) + "  " + ShownLine(move.from) + " \u2192 " + ShownLine(move.to);
    case When:
        return ToQt(LengthText(move.minutes));
    default:
        return move.from == NoProject ? QString() : QString("! overwritten");
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
