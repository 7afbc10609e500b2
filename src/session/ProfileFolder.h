#pragma once

#include "host/files/FolderDescriptor.h"

#include <chrono>
#include <optional>
#include <string>

namespace tempodial {

/// The folder that holds all that belongs to one user; locked against other processes while this object lives.
class ProfileFolder
{
public:
    /// Makes the folder when it is absent, with access for its user alone, and locks it. Fails with `ProfileInUse` when
    /// another process holds it still after that time, with `ProfileError` when it can't be made or opened.
    explicit ProfileFolder(const std::string& path, std::chrono::seconds wait = std::chrono::seconds(0));

    /// The absolute path.
    const std::string& Path() const { return mPath; }
    /// True when other users may put files into it.
    bool IsWritableByOthers() const { return mFolder->IsWritableByOthers(); }

    /// The folder that is used when none is named: TEMPODIAL_PROFILE, else "tempodial" in the user's data folder.
    /// Fails with `ProfileError` when the environment names no home.
    static std::string Default();

private:
    void Open();
    void Lock(std::chrono::seconds wait);
    void CloseToOthers() const;

    std::string mPath;
    std::optional<FolderDescriptor> mFolder;
};

}
