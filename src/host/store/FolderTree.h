#pragma once

#include "host/store/ItemData.h"
#include "platform/objectmodel/MAPIFolder.h"

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace tempodial {

class MailboxDatabase;

/// The folders of a mailbox, held in memory as well as in the file. Folders are named by their row; the row 0 is above
/// the top, and its one child is the store. A folder that is gone fails (-2147221233).
class FolderTree
{
public:
    struct Node
    {
        std::int64_t parent = 0;
        std::string name;
        /// The kind of default folder whose items it holds.
        DefaultFolder kind = DefaultFolder::Inbox;
        /// Folders below it in the order in which they were made.
        std::vector<std::int64_t> children;
        /// The user properties that it knows.
        std::vector<ItemProperty> fields;
    };

    explicit FolderTree(MailboxDatabase& database);

    /// Reads all folders from the file anew; fails (440) when they don't make one tree.
    void Load();

    /// Changes of folders so far, of the user properties that they know left out.
    std::int64_t Changes() const { return mChanges; }
    bool Exists(std::int64_t folder) const { return folder != 0 && mNodes.contains(folder); }
    const Node& Get(std::int64_t folder) const;
    /// The folder of that name below a folder, case ignored; 0 when there is none.
    std::int64_t Child(std::int64_t folder, const std::string& name) const;
    /// The default folder of that kind, 0 when it is gone.
    std::int64_t Default(DefaultFolder kind) const;
    /// Two backslashes, then the names from the store down.
    std::string FullPath(std::int64_t folder) const;
    /// The folder and all folders below it.
    std::vector<std::int64_t> Subtree(std::int64_t folder) const;

    /// Makes a folder; fails (457) for a name in use, (5) for one that isn't allowed or directly above the store.
    std::int64_t Add(std::int64_t parent, const std::string& name, DefaultFolder kind);
    /// Fails as `Add` does, and (5) for the store itself.
    void Rename(std::int64_t folder, const std::string& name);
    /// Fails as `Rename` does, and (5) for a move below itself.
    void Move(std::int64_t folder, std::int64_t parent);
    /// Deletes a folder with all below it, for good, together with what a preparation writes; fails (5) for the store
    /// itself.
    void Delete(std::int64_t folder, const std::function<void()>& preparation);
    /// Lets a folder know a user property; one of that name, case ignored, stays as it is.
    void AddField(std::int64_t folder, const std::string& name, PropertyType type);

private:
    Node& Change(std::int64_t folder);
    [[noreturn]] void FailDamaged() const;
    void CheckName(std::int64_t parent, const std::string& name, std::int64_t except) const;
    void CheckNotStore(std::int64_t folder) const;

    MailboxDatabase& mDatabase;
    std::unordered_map<std::int64_t, Node> mNodes;
    std::unordered_map<std::int32_t, std::int64_t> mDefaults;
    std::int64_t mChanges = 0;
};

}
