#include "host/files/AppendedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <utility>

namespace tempodial {

void AppendedFile::Seen(const std::string& path, const struct statx& status)
{
    mIsSeen = mFile && path == mPath && status.stx_ino == mFile->Status().st_ino
        && makedev(status.stx_dev_major, status.stx_dev_minor) == mFile->Status().st_dev
        && (status.stx_mode & S_IWUSR) != 0;
}

std::shared_ptr<const FileDescriptor> AppendedFile::Open(const std::string& path, const NativePath& native, bool create)
{
    if (std::exchange(mIsSeen, false) && path == mPath) {
        return mFile;
    }
    mFile = nullptr;
    auto file = std::make_shared<FileDescriptor>(native, O_WRONLY | O_APPEND | O_NOFOLLOW | (create ? O_CREAT : 0));
    file->RequireWritable();
    mPath = path;
    mFile = std::move(file);
    return mFile;
}

}
