#include "host/files/FileLock.h"

#include "host/files/SystemFailure.h"
#include "host/files/Uninterrupted.h"

#include <cerrno>
#include <sys/file.h>

namespace tempodial {

FileLock::FileLock(const NativePath& path)
    : mFile(path, Opening::AppendingOrNew)
{
}

bool FileLock::Try() const
{
    if (Uninterrupted([this] { return ::flock(mFile.Number(), LOCK_EX | LOCK_NB); }) == 0) {
        return true;
    }
    if (errno != EWOULDBLOCK) {
        throw SystemFailure(errno);
    }
    return false;
}

}
