#pragma once

#include <cstdint>
#include <optional>

namespace tempodial {

/// What stands at a path or in an open file, as it was when it was looked at.
struct FileStatus
{
    enum class Kind { File, Folder, Other };

    Kind kind = Kind::Other;
    /// True when its owner may write it.
    bool isWritable = false;
    std::uint64_t size = 0;
    /// Seconds since 1970 of its creation, or of its last change where the file system knows no creation.
    std::int64_t created = 0;
    /// Its disk, and its number there.
    std::uint64_t device = 0;
    std::uint64_t number = 0;

    bool IsSameFile(const FileStatus& other) const { return device == other.device && number == other.number; }

    /// Looks at a name in an open folder, with the system's flags; nothing, and an error number of the system, when it
    /// can't be looked at.
    static std::optional<FileStatus> Look(int folder, const char* name, int flags);
};

}
