#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "host/system/HostFileSystem.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tempodial {

/// The files of a profile, of which a tracker's file isn't deleted for its age while there are lines in it that no
/// import has reached: it moves into a folder beside the others. The add-in deletes such files at one age; where
/// another is set, they look older or younger by the difference.
class KeepingFileSystem final : public HostFileSystem
{
public:
    /// Takes the folder that stands in for the temporary folder, the mailbox that imports write to, and how many days
    /// files are kept, nothing for ever.
    KeepingFileSystem(std::string temporaryFolder, Ref<Mailbox> mailbox, std::optional<std::int32_t> retention);

    Folder GetFolder(const std::string& path) override;
    void DeleteFile(const std::string& path, bool force) override;

    /// The paths that files were kept under, in order.
    const std::vector<std::string>& Kept() const { return mKept; }

private:
    void Keep(const std::string& path);

    Ref<Mailbox> mMailbox;
    /// Days by which files of the tracker look younger than they are.
    std::int32_t mDaysYounger;
    std::vector<std::string> mKept;
};

}
