#pragma once

#include "host/files/FolderDescriptor.h"

#include <optional>
#include <string>

namespace tempodial {

/// Where a profile is or would be, looked at without a change to it.
class ProfilePlace
{
public:
    /// Fails with `ProfileError` when the path can't be used or the folder not be opened.
    explicit ProfilePlace(const std::string& path);

    /// The absolute path.
    const std::string& Path() const { return mPath; }
    /// True when a folder with something of a profile in it is there.
    bool HasProfile() const { return mFolder && HasProfileIn(mPath); }
    /// True when another process holds the profile.
    bool IsHeld() const { return mFolder && mFolder->Holder().has_value(); }
    /// True when other users may put files into it.
    bool IsWritableByOthers() const { return mFolder && mFolder->IsWritableByOthers(); }

    /// The absolute path of a folder; fails with `ProfileError` when it can't be used.
    static std::string UsablePath(const std::string& path);
    /// True for a folder with something of a profile in it.
    static bool HasProfileIn(const std::string& path);
    /// What is to be said of a profile that other users may write into.
    static std::string WarningOfWriters(const std::string& path);

private:
    std::string mPath;
    /// Nothing when there is none.
    std::optional<FolderDescriptor> mFolder;
};

}
