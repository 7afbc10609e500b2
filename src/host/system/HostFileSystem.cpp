#include "host/system/HostFileSystem.h"

#include "host/system/FileAppender.h"
#include "host/system/FileReader.h"
#include "host/system/FileReplacer.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

constexpr unsigned int FileFields = STATX_TYPE | STATX_MODE | STATX_INO | STATX_SIZE | STATX_BTIME;

bool IsSeparator(char character)
{
    return character == '/' || character == '\\';
}

/// What stands at a path itself, not behind a link; fails as a file operation does when nothing does or a folder.
struct stat StatusOfFile(const NativePath& path)
{
    struct stat status
    {
    };
    if (::lstat(path.CText(), &status) != 0) {
        throw path.FailureOf(errno);
    }
    if (S_ISDIR(status.st_mode)) {
        throw Failure(Error::PermissionDenied);
    }
    return status;
}

/// Looks at a file; false with errno when it can't be looked at. The time of its last change is only asked for where
/// the file system knows no creation: a file whose time was seen makes Linux note a new one at the next write, which
/// costs a trace line half as much again.
bool Look(int folder, const char* name, int flags, struct statx& status)
{
    if (::statx(folder, name, flags, FileFields, &status) != 0) {
        return false;
    }
    return (status.stx_mask & STATX_BTIME) != 0 || ::statx(folder, name, flags, FileFields | STATX_MTIME, &status) == 0;
}

bool Exists(const NativePath& path)
{
    struct stat status
    {
    };
    return ::lstat(path.CText(), &status) == 0;
}

void RenameToAbsent(const NativePath& source, const NativePath& target)
{
    if (::renameat2(AT_FDCWD, source.CText(), AT_FDCWD, target.CText(), RENAME_NOREPLACE) == 0) {
        return;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        throw target.FailureOf(errno);
    }
    // A file system without that call.
    if (Exists(target)) {
        throw Failure(Error::FileExists);
    }
    if (::rename(source.CText(), target.CText()) != 0) {
        throw target.FailureOf(errno);
    }
}

}

HostFileSystem::HostFileSystem(std::string temporaryFolder)
    : mTemporaryFolder(std::move(temporaryFolder))
{
}

std::string HostFileSystem::GetSpecialFolder(SpecialFolder)
{
    return mTemporaryFolder;
}

std::string HostFileSystem::BuildPath(const std::string& path, const std::string& name)
{
    if (path.empty() || name.empty()) {
        return path + name;
    }
    const bool pathEnds = IsSeparator(path.back());
    const bool nameBegins = IsSeparator(name.front());
    if (pathEnds || nameBegins) {
        return path + (pathEnds && nameBegins ? name.substr(1) : name);
    }
    const auto last = path.find_last_of("/\\");
    return path + (last == std::string::npos ? '/' : path[last]) + name;
}

bool HostFileSystem::FolderExists(const std::string& path)
{
    struct stat status
    {
    };
    return ::stat(NativePath(path).CText(), &status) == 0 && S_ISDIR(status.st_mode);
}

void HostFileSystem::CreateFolder(const std::string& path)
{
    const NativePath native(path);
    if (::mkdir(native.CText(), S_IRWXU) != 0) {
        throw errno == ENOENT ? Failure(Error::PathNotFound) : native.FailureOf(errno);
    }
}

Folder HostFileSystem::GetFolder(const std::string& path)
{
    const NativePath native(path);
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(::opendir(native.CText()), &::closedir);
    if (!listing) {
        throw errno == ENOENT ? Failure(Error::PathNotFound) : native.FailureOf(errno);
    }
    Folder folder { path, {} };
    while (const auto* entry = ::readdir(listing.get())) {
        struct statx status
        {
        };
        const bool mayBeFile = entry->d_type == DT_REG || entry->d_type == DT_UNKNOWN;
        if (mayBeFile && Look(::dirfd(listing.get()), entry->d_name, AT_SYMLINK_NOFOLLOW, status)
            && S_ISREG(status.stx_mode)) {
            folder.files.push_back({ entry->d_name, BuildPath(path, entry->d_name),
                static_cast<std::int64_t>(status.stx_size), CreationDate(status) });
        }
    }
    std::sort(folder.files.begin(), folder.files.end(), [](const File& a, const File& b) { return a.name < b.name; });
    return folder;
}

bool HostFileSystem::FileExists(const std::string& path)
{
    struct stat status
    {
    };
    return ::stat(NativePath(path).CText(), &status) == 0 && !S_ISDIR(status.st_mode);
}

File HostFileSystem::GetFile(const std::string& path)
{
    mAppended.Forget();
    const NativePath native(path);
    struct statx status
    {
    };
    if (!Look(AT_FDCWD, native.CText(), 0, status)) {
        throw native.FailureOf(errno);
    }
    if (!S_ISREG(status.stx_mode)) {
        throw Failure(Error::PermissionDenied);
    }
    mAppended.Seen(path, status);
    return { native.Name(), path, static_cast<std::int64_t>(status.stx_size), CreationDate(status) };
}

void HostFileSystem::MoveFile(const std::string& source, const std::string& target)
{
    mAppended.Forget();
    const NativePath from(source);
    StatusOfFile(from);
    RenameToAbsent(from, NativePath(target));
}

void HostFileSystem::CopyFile(const std::string& source, const std::string& target, bool overwrite)
{
    mAppended.Forget();
    const FileDescriptor from(NativePath(source), O_RDONLY);
    from.RequireUnlocked();
    const NativePath to(target);
    if (!overwrite && Exists(to)) {
        throw Failure(Error::FileExists);
    }
    RequireReplaceable(to, true);
    ReplacementFile copy(to);
    std::array<char, 65536> buffer {};
    while (const auto count = from.Read(buffer.data(), buffer.size())) {
        copy.Write({ buffer.data(), count });
    }
    copy.SetModificationTime(from.Status().st_mtim);
    copy.Commit();
}

void HostFileSystem::DeleteFile(const std::string& path, bool force)
{
    mAppended.Forget();
    const NativePath native(path);
    const auto status = StatusOfFile(native);
    if (!force && S_ISREG(status.st_mode) && (status.st_mode & S_IWUSR) == 0) {
        throw Failure(Error::PermissionDenied);
    }
    if (::unlink(native.CText()) != 0) {
        throw native.FailureOf(errno);
    }
}

Ref<TextStream> HostFileSystem::OpenTextFile(const std::string& path, OpenMode mode, bool create)
{
    const NativePath native(path);
    switch (mode) {
    case OpenMode::Reading:
        return MakeRef<FileReader>(native, create);
    case OpenMode::Writing:
        mAppended.Forget();
        return MakeRef<FileReplacer>(native, create);
    case OpenMode::Appending:
        return MakeRef<FileAppender>(mAppended.Open(path, native, create));
    }
    throw Failure(Error::InvalidCall);
}

Date HostFileSystem::CreationDate(const struct statx& status)
{
    const auto& created = (status.stx_mask & STATX_BTIME) != 0 ? status.stx_btime : status.stx_mtime;
    return mLocalTime.At(created.tv_sec);
}

}
