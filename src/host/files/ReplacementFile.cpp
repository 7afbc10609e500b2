#include "host/files/ReplacementFile.h"

#include "host/files/FolderDescriptor.h"
#include "host/files/PathOperations.h"

#include <cerrno>
#include <sys/stat.h>

namespace tempodial {

namespace {

/// What the names of new content begin and end with.
constexpr char Prefix = '.';
constexpr std::string_view Suffix = ".new";

NativePath Replaceable(const NativePath& path, ReplacementFile::Old old)
{
    try {
        const FileDescriptor file(path, Opening::Writing);
        file.RequireWritable();
        file.RequireUnlocked();
    } catch (const Failure& failure) {
        if (old == ReplacementFile::Old::MustExist || !failure.Is(Error::FileNotFound)) {
            throw;
        }
    }
    return path;
}

/// The place of the new content: a hidden name, which nothing takes for a file of its own.
NativePath NewPath(const NativePath& path)
{
    auto newPath = path.Beside(Prefix + path.Name() + std::string(Suffix));
    Discard(newPath); // left over from a run that was killed
    return newPath;
}

/// The mode that the user's new files have.
mode_t ModeOfNewFiles()
{
    // The mask is only told when it is set.
    const auto mask = ::umask(S_IRWXG | S_IRWXO);
    ::umask(mask);
    return DEFFILEMODE & ~mask;
}

}

ReplacementFile::ReplacementFile(const NativePath& path, Old old)
    : mPath(Replaceable(path, old))
    , mNewPath(NewPath(path))
    , mFile(mNewPath, Opening::New)
{
}

ReplacementFile::~ReplacementFile()
{
    if (!mHasTakenPlace) {
        Discard(mNewPath);
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

void ReplacementFile::TakeUsualMode() const
{
    struct stat old
    {
    };
    const auto mode = ::stat(mPath.CText(), &old) == 0 ? old.st_mode & ACCESSPERMS : ModeOfNewFiles();
    if (::fchmod(mFile.Number(), mode) != 0) {
        throw SystemFailure(errno);
    }
}

void ReplacementFile::Commit()
{
    RequireWhole();
    mFile.Sync();
    TakePlace();
    FolderDescriptor(NativePath::Exactly(mPath.Folder())).Sync();
}

void ReplacementFile::TakePlace()
{
    RequireWhole();
    mFile.Close();
    Rename(mNewPath, mPath);
    mHasTakenPlace = true;
}

void ReplacementFile::RequireWhole() const
{
    if (mFailure) {
        throw Failure(*mFailure);
    }
}

void ReplacementFile::DiscardLeftovers(const NativePath& folder) noexcept
{
    try {
        for (const auto& entry : FolderDescriptor(folder).Files()) {
            if (entry.name.front() == Prefix && entry.name.ends_with(Suffix)) {
                Discard(NativePath::Exactly(folder.Text() + "/" + entry.name));
            }
        }
    } catch (...) {
        // Where nothing can be listed nothing is in the way either.
    }
}

}
