#pragma once

#include "desktop/qt/Desk.h"
#include "review/Activity.h"

#include <QAbstractTableModel>
#include <vector>

namespace tempodial {

/// The activities that rules would change, as lines of a list.
class EffectModel final : public QAbstractTableModel
{
public:
    EffectModel(Desk& desk, QObject* parent);

    /// Shows other activities, which must live until others are shown.
    void Show(const std::vector<Activity>& activities);
    /// More of them have come at the end.
    void ShowMore();
    const Activity& ActivityOf(int row) const { return (*mActivities)[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    enum Column { Title, When, Project, Columns };

    Desk& mDesk;
    const std::vector<Activity>* mActivities = nullptr;
    int mCount = 0;
};

}
