#include "host/files/PathOperations.h"

#include "host/files/SystemFailure.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace fs = std::filesystem;

std::optional<FileStatus> StatusAt(const NativePath& path, Links links)
{
    return FileStatus::Look(AT_FDCWD, path.CText(), links == Links::Followed ? 0 : AT_SYMLINK_NOFOLLOW);
}

FileStatus StatusOf(const NativePath& path, Links links)
{
    const auto status = StatusAt(path, links);
    if (!status) {
        throw path.FailureOf(errno);
    }
    return *status;
}

bool MayWrite(const NativePath& path)
{
    return ::access(path.CText(), W_OK) == 0;
}

NativePath BehindLinks(NativePath path)
{
    constexpr int MostLinks = 40;
    for (int link = 0; link < MostLinks; ++link) {
        std::error_code isNone;
        const auto target = fs::read_symlink(path.Text(), isNone);
        if (isNone) {
            break;
        }
        path = NativePath::Exactly((fs::path(path.Folder()) / target).string());
    }
    return path;
}

void Rename(const NativePath& source, const NativePath& target)
{
    if (::rename(source.CText(), target.CText()) != 0) {
        throw target.FailureOf(errno);
    }
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
    if (StatusAt(target, Links::Taken)) {
        throw Failure(Error::FileExists);
    }
    Rename(source, target);
}

void TakePlaceOf(const NativePath& fresh, const NativePath& place, const NativePath& former)
{
    RenameToAbsent(fresh, former);
    if (::renameat2(AT_FDCWD, former.CText(), AT_FDCWD, place.CText(), RENAME_EXCHANGE) == 0) {
        return;
    }
    const int error = errno;
    Rename(former, fresh);
    if (error != EINVAL && error != ENOSYS) {
        throw place.FailureOf(error);
    }
    // A file system without that call.
    RenameToAbsent(place, former);
    Rename(fresh, place);
}

void RemoveFolder(const NativePath& path)
{
    std::error_code error;
    fs::remove_all(path.Text(), error);
    if (error) {
        throw SystemFailure(error.value());
    }
}

void Remove(const NativePath& path)
{
    if (::unlink(path.CText()) != 0) {
        throw path.FailureOf(errno);
    }
}

void Discard(const NativePath& path) noexcept
{
    ::unlink(path.CText());
}

void MakeFolder(const NativePath& path)
{
    if (::mkdir(path.CText(), S_IRWXU) != 0) {
        throw NativePath::FolderFailure(errno);
    }
}

void MakeFoldersAbove(const NativePath& path) noexcept
{
    const auto above = NativePath::Exactly(path.Folder());
    if (above.Text() != path.Text() && ::mkdir(above.CText(), S_IRWXU) != 0 && errno == ENOENT) {
        MakeFoldersAbove(above);
        (void)::mkdir(above.CText(), S_IRWXU);
    }
}

NativePath AbsolutePath(const std::string& path)
{
    std::error_code error;
    const auto absolute = fs::absolute(path, error).lexically_normal();
    if (error) {
        throw SystemFailure(error.value());
    }
    return NativePath::Exactly((absolute.has_filename() ? absolute : absolute.parent_path()).string());
}

}
