#include "host/files/FolderDescriptor.h"

#include "host/files/SystemFailure.h"
#include "host/files/Uninterrupted.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tempodial {

namespace {

using Listing = std::unique_ptr<DIR, int (*)(DIR*)>;

/// What is in an open folder, from its start.
Listing ListingOf(int folder)
{
    const auto number = Uninterrupted([&] { return ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (number < 0) {
        throw SystemFailure(errno);
    }
    Listing listing(::fdopendir(number), &::closedir);
    if (!listing) {
        const SystemFailure failure(errno);
        ::close(number);
        throw failure;
    }
    return listing;
}

}

FolderDescriptor::FolderDescriptor(const NativePath& path)
    : mNumber(Uninterrupted([&] { return ::open(path.CText(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }))
{
    if (mNumber < 0) {
        throw NativePath::FolderFailure(errno);
    }
}

FolderDescriptor::~FolderDescriptor()
{
    ::close(mNumber);
}

std::vector<FolderDescriptor::Entry> FolderDescriptor::Files() const
{
    const auto listing = ListingOf(mNumber);
    std::vector<Entry> files;
    while (const auto* entry = ::readdir(listing.get())) {
        if (entry->d_type != DT_REG && entry->d_type != DT_UNKNOWN) {
            continue;
        }
        const auto status = FileStatus::Look(mNumber, entry->d_name, AT_SYMLINK_NOFOLLOW);
        if (status && status->kind == FileStatus::Kind::File) {
            files.push_back({ entry->d_name, *status });
        }
    }
    return files;
}

bool FolderDescriptor::IsEmpty() const
{
    const auto listing = ListingOf(mNumber);
    while (const auto* entry = ::readdir(listing.get())) {
        if (const std::string_view name = entry->d_name; name != "." && name != "..") {
            return false;
        }
    }
    return true;
}

void FolderDescriptor::Sync() const
{
    // Some file systems keep names safe by themselves and know no such call.
    if (::fsync(mNumber) != 0 && errno != EINVAL) {
        throw SystemFailure(errno);
    }
}

bool FolderDescriptor::TryLock() const
{
    if (::flock(mNumber, LOCK_EX | LOCK_NB) == 0) {
        return true;
    }
    if (errno != EWOULDBLOCK) {
        throw SystemFailure(errno);
    }
    return false;
}

bool FolderDescriptor::IsOpenToOthers() const
{
    struct stat status
    {
    };
    return ::fstat(mNumber, &status) == 0 && (status.st_mode & (S_IRWXG | S_IRWXO)) != 0
        && status.st_uid == ::geteuid();
}

void FolderDescriptor::CloseToOthers() const
{
    (void)::fchmod(mNumber, S_IRWXU);
}

}
