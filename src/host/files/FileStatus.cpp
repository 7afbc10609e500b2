#include "host/files/FileStatus.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace tempodial {

namespace {

constexpr unsigned int Fields = STATX_TYPE | STATX_MODE | STATX_INO | STATX_SIZE | STATX_BTIME;

FileStatus::Kind KindOf(unsigned int mode)
{
    return S_ISREG(mode) ? FileStatus::Kind::File : S_ISDIR(mode) ? FileStatus::Kind::Folder : FileStatus::Kind::Other;
}

}

std::optional<FileStatus> FileStatus::Look(int folder, const char* name, int flags)
{
    struct statx status
    {
    };
    if (::statx(folder, name, flags, Fields, &status) != 0) {
        return std::nullopt;
    }
    // The time of its last change is only asked for where the file system knows no creation: a file whose time was seen
    // makes Linux note a new one at the next write, which costs a trace line half as much again.
    const bool hasCreation = (status.stx_mask & STATX_BTIME) != 0;
    if (!hasCreation && ::statx(folder, name, flags, Fields | STATX_MTIME, &status) != 0) {
        return std::nullopt;
    }
    return FileStatus { KindOf(status.stx_mode), (status.stx_mode & S_IWUSR) != 0, status.stx_size,
        hasCreation ? status.stx_btime.tv_sec : status.stx_mtime.tv_sec,
        makedev(status.stx_dev_major, status.stx_dev_minor), status.stx_ino };
}

}
