#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

namespace tempodial {

/// What changed among the items of a folder, by their numbers.
struct FolderItemChanges
{
    /// Those that were made, changed or moved to it.
    std::set<std::int64_t> saved;
    /// Those that were deleted or moved away.
    std::set<std::int64_t> gone;

    friend bool operator==(const FolderItemChanges&, const FolderItemChanges&) = default;
};

/// What changed among the items of a mailbox since that was last told.
struct ItemChanges
{
    /// Anything may have changed: writes were undone, or many items changed as a whole.
    bool isAnything = false;
    /// What else changed, by the identities of the folders.
    std::map<std::string, FolderItemChanges> folders {};

    /// True when nothing changed.
    bool IsEmpty() const { return !isAnything && folders.empty(); }
    /// True when something may have changed in the folder of an identity.
    bool Concern(const std::string& folder) const { return isAnything || folders.contains(folder); }

    friend bool operator==(const ItemChanges&, const ItemChanges&) = default;
};

}
