#pragma once

#include "desktop/RuleEffect.h"
#include "desktop/qt/Desk.h"

#include <QAbstractTableModel>
#include <vector>

namespace tempodial {

/// The activities that rules would change, as lines of a list: first how many come from which project, then each.
class EffectModel final : public QAbstractTableModel
{
public:
    EffectModel(Desk& desk, QObject* parent);

    /// Shows another effect, which must live until another is shown.
    void Show(const RuleEffect& effect);
    /// More has been found out of it.
    void ShowMore();
    /// The activity of a line; null for one that gathers several.
    const Activity* ActivityOf(int row) const;

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    enum Column { Title, When, Project, Columns };

    Desk& mDesk;
    int Gathered() const { return static_cast<int>(mMoves.size()); }
    static QVariant MoveText(const ProjectMoves::Move& move, int column);

    const RuleEffect* mEffect = nullptr;
    std::vector<ProjectMoves::Move> mMoves;
    int mCount = 0;
};

}
