#pragma once

#include "host/files/FileDescriptor.h"

namespace tempodial {

/// A file that one process at a time holds, until this object or the process ends. It stays where it is.
class FileLock
{
public:
    /// Opens the file, made when it is absent. Fails as opening does.
    explicit FileLock(const NativePath& path);

    /// Takes it; false when another process holds it. Fails where there are no locks.
    bool Try() const;

private:
    FileDescriptor mFile;
};

}
