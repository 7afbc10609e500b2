#pragma once

#include "host/store/FilterSql.h"
#include "host/store/ItemData.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

class MailboxDatabase;

/// How a list of items is ordered; without a field in the order in which they came into the mailbox.
struct ItemOrder
{
    std::optional<FilterField> field;
    bool descending = false;
};

/// The rows of all items. Every member fails as a statement does.
class ItemTable
{
public:
    explicit ItemTable(MailboxDatabase& database);

    /// Stores a new item, saved at that moment, and answers its row, which no other item ever had.
    std::int64_t Insert(std::int64_t folder, const ItemData& data, std::optional<Date> saved);
    /// Stores what has changed since an item was stored; fails, as the next does, (-2147221233) when it is gone.
    void Update(std::int64_t row, const ItemData& before, const ItemData& data, std::optional<Date> saved);
    void Move(std::int64_t row, std::int64_t folder);
    void Delete(std::int64_t row);
    /// Keeps rows from being used again although their items are about to be deleted.
    void RetireRows();
    /// Called before each change of a row, one that is about to be made included, but for those of a folder that is
    /// deleted.
    void SetWatcher(std::function<void(std::int64_t row)> watcher) { mWatcher = std::move(watcher); }
    /// Changes to stored items so far; what was read before the last change may be out of date.
    std::int64_t Changes() const { return mChanges; }
    /// Counts a change that this class didn't make.
    void NoteChange() { ++mChanges; }

    /// The item of a row, nothing when it is gone.
    std::optional<StoredItem> Load(std::int64_t row);
    /// The items of rows in that order; nothing for one that is gone.
    std::vector<std::optional<StoredItem>> Load(std::span<const std::int64_t> rows);

    /// The rows of a folder.
    std::vector<std::int64_t> All(std::int64_t folder, const ItemOrder& order);
    /// The rows of a folder that a filter lets through, in the order in which they came into the mailbox.
    std::vector<std::int64_t> Select(std::int64_t folder, const FilterCondition& condition);
    /// The first of these, 0 when there is none.
    std::int64_t First(std::int64_t folder, const FilterCondition& condition);
    /// Those rows in another order; rows of equal value keep theirs, and those that are gone are left out.
    std::vector<std::int64_t> Sorted(std::span<const std::int64_t> rows, const ItemOrder& order);

private:
    /// Says that a row is about to change; fails when nothing can be changed.
    void BeginChange(std::int64_t row);
    /// Counts the change of a row; fails when there was none to change.
    void NoteChangedRow();
    std::vector<std::int64_t> Rows(std::int64_t folder, const FilterCondition& condition, const std::string& ending);

    MailboxDatabase& mDatabase;
    std::int64_t mLastRow = 0;
    std::int64_t mChanges = 0;
    std::function<void(std::int64_t row)> mWatcher;
};

}
