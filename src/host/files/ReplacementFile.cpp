#include "host/files/ReplacementFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace tempodial {

namespace {

/// The place of the new content: a hidden name, which nothing takes for a file of its own.
NativePath NewPath(const NativePath& path)
{
    NativePath newPath(path.Folder() + "/." + path.Name() + ".new");
    ::unlink(newPath.CText()); // left over from a run that was killed
    return newPath;
}

}

ReplacementFile::ReplacementFile(const NativePath& path)
    : mPath(path)
    , mNewPath(NewPath(path))
    , mFile(mNewPath, O_WRONLY | O_CREAT | O_EXCL)
{
}

ReplacementFile::~ReplacementFile()
{
    if (!mHasTakenPlace) {
        ::unlink(mNewPath.CText());
    }
}

void ReplacementFile::Write(std::string_view bytes)
{
    try {
        mFile.Write(bytes);
    } catch (const Failure& failure) {
        mFailure = failure;
        throw;
    }
}

void ReplacementFile::Commit()
{
    if (mFailure) {
        throw Failure(*mFailure);
    }
    mFile.Sync();
    mFile.Close();
    if (::rename(mNewPath.CText(), mPath.CText()) != 0) {
        throw mPath.FailureOf(errno);
    }
    mHasTakenPlace = true;
    SyncFolder(mPath.Folder());
}

}
