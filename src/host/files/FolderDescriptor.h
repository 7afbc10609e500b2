#pragma once

#include "host/files/FileStatus.h"
#include "host/files/NativePath.h"

#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// An open folder.
class FolderDescriptor
{
public:
    /// Something in a folder.
    struct Entry
    {
        std::string name;
        FileStatus status;
    };

    /// A process, and the program that it runs.
    struct LockHolder
    {
        std::string program;
        std::string process;
    };

    /// Opens a folder; an absent one and what is none fail (76), a forbidden one (70).
    explicit FolderDescriptor(const NativePath& path);
    FolderDescriptor(const FolderDescriptor&) = delete;
    FolderDescriptor& operator=(const FolderDescriptor&) = delete;
    ~FolderDescriptor();

    /// The regular files in it, in no order.
    std::vector<Entry> Files() const;
    /// All that stands in it, in the order of the names; of links what they are, not what they lead to.
    std::vector<Entry> Everything() const;
    /// What stands at a name in it, behind links; nothing when that can't be looked at.
    std::optional<FileStatus> StatusOf(const std::string& name) const;
    /// True when nothing stands in it.
    bool IsEmpty() const;
    /// True when it is what stands at a path.
    bool IsAt(const NativePath& path) const;
    /// Makes the names in it safe on disk; fails when the disk refuses (57).
    void Sync() const;
    /// Locks it against other processes until it is closed; false when another holds it, and fails where there are no
    /// locks.
    bool TryLock() const;
    /// The process that holds the lock, nothing when none does or none can be told.
    std::optional<LockHolder> Holder() const;
    /// True when other users may make and remove names in it.
    bool IsWritableByOthers() const;
    /// True when it is this user's and others have access too.
    bool IsOpenToOthers() const;
    /// Takes the others' access, if the system lets it.
    void CloseToOthers() const;

private:
    int mNumber;
};

}
