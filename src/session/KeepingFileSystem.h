#pragma once

#include "base/Ref.h"
#include "host/store/Mailbox.h"
#include "host/system/HostFileSystem.h"

#include <string>
#include <vector>

namespace tempodial {

/// The files of a profile, of which a tracker's file isn't deleted for its age while there are lines in it that no
/// import has reached: it moves into a folder beside the others.
class KeepingFileSystem final : public HostFileSystem
{
public:
    /// Takes the folder that stands in for the temporary folder, and the mailbox that imports write to.
    KeepingFileSystem(std::string temporaryFolder, Ref<Mailbox> mailbox);

    void DeleteFile(const std::string& path, bool force) override;

    /// The paths that files were kept under, in order.
    const std::vector<std::string>& Kept() const { return mKept; }

private:
    void Keep(const std::string& path);

    Ref<Mailbox> mMailbox;
    std::vector<std::string> mKept;
};

}
