#pragma once

#include "host/files/ArchiveModule.h"
#include "host/files/FileDescriptor.h"
#include "host/files/NativePath.h"

#include <cstdint>
#include <stdexcept>
#include <string>

namespace tempodial {

/// An archive that can't be used; the text says what is wrong with it, and names it not.
class ArchiveError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A compressed archive of files and folders (.tar.gz). The library that knows them is in a module of its own, which is
/// loaded for the first one; without it every member fails (429).
class ArchiveFile
{
public:
    /// Opens an archive for reading; fails as that does.
    explicit ArchiveFile(const NativePath& path);

    /// Reads all of it. Fails with `ArchiveError` when it is damaged or cut off, and when it expands to far more than
    /// files of ours could.
    void RequireWhole() const;
    /// Gives its members to a target. Fails with `ArchiveError` when it can't be read on, and as the target does.
    void Unpack(ArchiveTarget& target) const;

    /// Makes an archive of what a source gives; fails as source and sink do, and with `ArchiveError`.
    static void Pack(ArchiveSource& source, const ByteSink& sink);

private:
    /// Its bytes from the begin on.
    ByteSource Bytes() const;

    NativePath mPath;
    std::uint64_t mSize;
};

}
