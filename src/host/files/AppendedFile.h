#pragma once

#include "host/files/FileDescriptor.h"
#include "host/files/FolderDescriptor.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace tempodial {

/// The file that was appended to last, kept open: the trace looks at its file and opens it for each of its lines, and
/// the file that was just looked at need not be opened anew. Its folder is kept open too: most of the time of a look is
/// the way there, so until the system's clock ticks again, some milliseconds later, looks begin at the folder.
class AppendedFile
{
public:
    /// Looks at a path again; nothing when that takes the whole way, as when the file isn't there any more.
    std::optional<FileStatus> LookAgain(const std::string& path);
    /// The file's name in its folder.
    const std::string& Name() const { return mName; }
    /// A look at a path, all the way, found a file of that state.
    void Seen(const std::string& path, const NativePath& native, const FileStatus& status);
    /// Something else happened since the last look.
    void Forget() { mIsSeen = false; }
    /// The open file of a path, the one kept when it was just seen there.
    std::shared_ptr<const FileDescriptor> Open(const std::string& path, bool create);

private:
    bool IsKept(const std::string& path, const FileStatus& status) const;

    std::string mPath;
    std::shared_ptr<const FileDescriptor> mFile;
    bool mIsSeen = false;
    std::string mName;
    std::optional<FolderDescriptor> mFolder;
    /// How long the system ran, as of the last tick, when the folder was opened.
    std::chrono::nanoseconds mTick {};
};

}
