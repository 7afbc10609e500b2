#include "host/files/AppendedFile.h"

#include <utility>

namespace tempodial {

void AppendedFile::Seen(const std::string& path, const FileStatus& status)
{
    mIsSeen = mFile && path == mPath && status.IsSameFile(mFile->Status()) && status.isWritable;
}

std::shared_ptr<const FileDescriptor> AppendedFile::Open(const std::string& path, const NativePath& native, bool create)
{
    if (std::exchange(mIsSeen, false) && path == mPath) {
        return mFile;
    }
    mFile = nullptr;
    auto file = std::make_shared<FileDescriptor>(native, create ? Opening::AppendingOrNew : Opening::Appending);
    file->RequireWritable();
    mPath = path;
    mFile = std::move(file);
    return mFile;
}

}
