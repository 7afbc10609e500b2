#pragma once

#include "desktop/FieldValues.h"
#include "desktop/ListRows.h"
#include "desktop/ShownLog.h"
#include "desktop/qt/Desk.h"

#include <QAbstractTableModel>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// Activities as the lines and columns of a table view's definition.
class ActivityListModel final : public QAbstractTableModel
{
public:
    ActivityListModel(Desk& desk, QObject* parent);

    /// Shows activities, which must live until others are shown, as a definition says.
    void Show(const std::vector<Activity>& activities, const TableViewLayout& layout, Coloured coloured);
    void SetFolded(std::size_t row, bool isFolded);

    /// The activities that are shown.
    const std::vector<Activity>& Activities() const { return *mActivities; }
    const TableViewLayout& Layout() const { return mLayout; }
    std::size_t Count() const { return mRows ? mRows->Rows().size() : 0; }
    /// The activity of a row; null for a heading.
    const Activity* ActivityOf(int row) const;
    /// What a row is known by while the list changes.
    std::pair<std::int64_t, std::string> KeyOf(int row) const;
    /// The group whose heading a row is; null for an activity.
    const ListGroup* GroupOf(int row) const;

    int rowCount(const QModelIndex& parent) const override;
    int columnCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant HeadingData(const ListGroup& group, int column, int role) const;

    Desk& mDesk;
    std::optional<FieldValues> mValues;
    TableViewLayout mLayout;
    const std::vector<Activity>* mActivities = nullptr;
    /// The number of each: when others are shown, these may have gone already.
    std::vector<std::int64_t> mNumbers;
    Coloured mColoured = Coloured::Project;
    std::optional<ListRows> mRows;
};

}
