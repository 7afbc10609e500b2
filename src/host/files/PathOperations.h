#pragma once

#include "host/files/FileStatus.h"
#include "host/files/NativePath.h"

#include <optional>
#include <string>

namespace tempodial {

/// What is looked at where a link stands: the link, or what it leads to.
enum class Links { Taken, Followed };

/// What stands at a path; nothing when it can't be looked at.
std::optional<FileStatus> StatusAt(const NativePath& path, Links links);
/// What stands at a path; fails when it can't be looked at (53, 76, 70).
FileStatus StatusOf(const NativePath& path, Links links);
/// True for a file that this user may write.
bool MayWrite(const NativePath& path);
/// The path that a link leads to in the end, whether something stands there or not; another path as it is.
NativePath BehindLinks(NativePath path);

/// Puts a file in the place of another, if there is one.
void Rename(const NativePath& source, const NativePath& target);
/// Gives a file a name that nothing has; fails (58) when something does.
void RenameToAbsent(const NativePath& source, const NativePath& target);
/// Puts a folder in the place of another, which gets a name that nothing has; at each moment there is one of both in
/// the place, where the file system can do that.
void TakePlaceOf(const NativePath& fresh, const NativePath& place, const NativePath& former);
/// Removes a folder with all that is in it, links alone and not what they lead to; does nothing when there is none.
void RemoveFolder(const NativePath& path);
/// Removes a file or a link.
void Remove(const NativePath& path);
/// Removes a file or a link, if it is there and can be.
void Discard(const NativePath& path) noexcept;
/// Makes a folder for this user alone; fails when something stands there (58) or the folder above is absent (76).
void MakeFolder(const NativePath& path);
/// Makes the folders above a path for this user alone, as far as they are absent and can be made.
void MakeFoldersAbove(const NativePath& path) noexcept;
/// The path from the root on, without "." and ".." and without a separator at its end. Fails when there is none.
NativePath AbsolutePath(const std::string& path);

}
