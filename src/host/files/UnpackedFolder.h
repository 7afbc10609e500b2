#pragma once

#include "host/files/ArchiveModule.h"
#include "host/files/FileDescriptor.h"
#include "host/files/FolderDescriptor.h"
#include "host/files/NativePath.h"

#include <cstddef>
#include <ctime>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tempodial {

/// A new folder that an archive is unpacked into, for this user alone; it is gone with this unless it is kept. It takes
/// only files and folders below one folder of the archive, each once, and by names that lead nowhere else; everything
/// else fails with `ArchiveError`.
class UnpackedFolder final : public ArchiveTarget
{
public:
    /// Makes the folder, in the place of one that a run has left which was killed. Takes the name of the one folder in
    /// the archive, and tells of names in it that may not be there. Fails (70) when another process unpacks there, and
    /// as making folders does.
    UnpackedFolder(const NativePath& path, std::string top, std::function<bool(const std::string& name)> isRefused);
    ~UnpackedFolder() override;
    UnpackedFolder(const UnpackedFolder&) = delete;
    UnpackedFolder& operator=(const UnpackedFolder&) = delete;

    void Begin(const ArchiveMember& member) override;
    void Write(std::string_view bytes) override;

    const NativePath& Path() const { return mPath; }
    /// The path of a name in it.
    NativePath PathOf(const std::string& name) const { return NativePath::Exactly(mPath.Text() + "/" + name); }
    /// How many files came into it.
    std::size_t Files() const { return mFiles; }
    /// Makes all that came safe on disk. Fails when the disk refuses.
    void Finish();
    /// Leaves it where it is, or where it was moved to.
    void Keep() { mIsKept = true; }

private:
    /// Gives the last file its time and closes it.
    void EndFile();
    /// The path below the folder that a member's path stands for, empty for the folder itself.
    std::string PathBelow(const ArchiveMember& member) const;
    void MakeFoldersFor(const std::string& path);

    NativePath mPath;
    std::string mTop;
    std::function<bool(const std::string& name)> mIsRefused;
    std::optional<FolderDescriptor> mFolder;
    /// What came, by path; true for folders.
    std::map<std::string, bool> mMembers;
    std::optional<FileDescriptor> mFile;
    std::time_t mChanged = 0;
    std::size_t mFiles = 0;
    bool mIsKept = false;
};

}
