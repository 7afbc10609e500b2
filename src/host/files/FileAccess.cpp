#include "host/files/FileAccess.h"

#include <sys/stat.h>
#include <sys/statvfs.h>

namespace tempodial {

bool IsOpenToOthers(const NativePath& path)
{
    struct stat status
    {
    };
    return ::stat(path.CText(), &status) == 0 && (status.st_mode & (S_IRWXG | S_IRWXO)) != 0;
}

std::optional<std::uint64_t> FreeBytes(const NativePath& path)
{
    struct statvfs disk
    {
    };
    if (::statvfs(path.CText(), &disk) != 0) {
        return std::nullopt;
    }
    return std::uint64_t { disk.f_bavail } * disk.f_frsize;
}

}
