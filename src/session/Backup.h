#pragma once

#include "host/files/NativePath.h"
#include "session/Profile.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tempodial {

/// What the one folder in a backup is called.
inline constexpr auto BackupFolderName = "tempodial";

/// What went into a backup.
struct BackupContent
{
    std::size_t files = 0;
    /// What couldn't, by path: neither a file nor a folder.
    std::vector<std::string> leftOut;
};

/// Puts a whole profile into an archive, for this user alone, which takes a file's place when it is safe on disk. The
/// profile is as it is at this moment, since this process holds it. Fails as reading and writing files do, and with
/// `ArchiveError`.
BackupContent BackUp(const Profile& profile, const NativePath& file);

/// True for names of files in a profile that are of use to a process alone: locks, sockets, journals, and what a run
/// that was killed has left.
bool IsOfProcesses(const std::string& name);

}
