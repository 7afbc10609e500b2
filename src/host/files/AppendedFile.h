#pragma once

#include "host/files/FileDescriptor.h"

#include <memory>
#include <string>

namespace tempodial {

/// The file that was appended to last, kept open: the trace looks at its file and opens it for each of its lines, and
/// the file that was just looked at need not be opened anew.
class AppendedFile
{
public:
    /// A look at a path found a file of that state.
    void Seen(const std::string& path, const FileStatus& status);
    /// Something else happened since the last look.
    void Forget() { mIsSeen = false; }
    /// The open file of a path, the one kept when it was just seen there.
    std::shared_ptr<const FileDescriptor> Open(const std::string& path, const NativePath& native, bool create);

private:
    std::string mPath;
    std::shared_ptr<const FileDescriptor> mFile;
    bool mIsSeen = false;
};

}
