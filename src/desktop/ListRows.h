#pragma once

#include "desktop/FieldValues.h"
#include "desktop/TableViewLayout.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tempodial {

/// Activities of one value of the field that a list is grouped by.
struct ListGroup
{
    /// The value as text.
    std::string name;
    /// The value with its case folded, by which the group is known while the list changes.
    std::string key;
    std::int64_t minutes = 0;
    /// The places of its activities in the list that was given, in the view's order.
    std::vector<std::size_t> activities;
    bool isFolded = false;
};

/// A line of a list: the heading of a group, or an activity.
struct ListRow
{
    /// The place of the group.
    std::size_t group = 0;
    /// The place of the activity; nothing for the heading.
    std::optional<std::size_t> activity;

    friend bool operator==(const ListRow&, const ListRow&) = default;
};

/// Activities as a table view shows them: grouped by the first field of its groups, ordered by the others and by those
/// of its order. Without groups there are no headings.
class ListRows
{
public:
    /// Takes the keys of the groups that are folded.
    ListRows(const std::vector<Activity>& activities, const TableViewLayout& view, const FieldValues& values,
        std::set<std::string> folded = {});

    const std::vector<ListGroup>& Groups() const { return mGroups; }
    const std::vector<ListRow>& Rows() const { return mRows; }
    /// The keys of the folded groups, those among them that have no activities at the moment.
    const std::set<std::string>& Folded() const { return mFolded; }
    /// Folds a group or shows its activities again.
    void SetFolded(std::size_t group, bool isFolded);

private:
    void MakeRows();

    std::vector<ListGroup> mGroups;
    std::vector<ListRow> mRows;
    std::set<std::string> mFolded;
    bool mHasHeadings;
};

}
