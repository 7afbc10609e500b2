#include "host/files/FolderDescriptor.h"

#include "host/files/FileDescriptor.h"
#include "host/files/PathOperations.h"
#include "host/files/SystemFailure.h"
#include "host/files/Uninterrupted.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
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

/// True for the names of a folder itself and of the one above, which every folder has.
bool IsItselfOrAbove(std::string_view name)
{
    return name == "." || name == "..";
}

/// What the system tells in one of its files.
std::string SystemText(const std::string& path)
{
    return FileDescriptor(NativePath::Exactly(path), Opening::Reading).ReadAll();
}

/// True for a place as the list of locks has it, "kind:disk:number" with the first two in hexadecimal digits.
bool IsPlaceOf(const std::string& place, const struct stat& status)
{
    std::istringstream parts(place);
    unsigned kind = 0;
    unsigned disk = 0;
    std::uint64_t number = 0;
    char colon = 0;
    parts >> std::hex >> kind >> colon >> disk >> colon >> std::dec >> number;
    return parts && makedev(kind, disk) == status.st_dev && number == status.st_ino;
}

/// The name of the program that a process runs.
std::string ProgramOf(const std::string& process)
{
    const auto words = SystemText("/proc/" + process + "/cmdline");
    return NativePath::Exactly(words.substr(0, words.find('\0'))).Name();
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

std::vector<FolderDescriptor::Entry> FolderDescriptor::Everything() const
{
    const auto listing = ListingOf(mNumber);
    std::vector<Entry> entries;
    while (const auto* entry = ::readdir(listing.get())) {
        if (IsItselfOrAbove(entry->d_name)) {
            continue;
        }
        if (const auto status = FileStatus::Look(mNumber, entry->d_name, AT_SYMLINK_NOFOLLOW)) {
            entries.push_back({ entry->d_name, *status });
        }
    }
    std::sort(
        entries.begin(), entries.end(), [](const Entry& one, const Entry& other) { return one.name < other.name; });
    return entries;
}

std::optional<FileStatus> FolderDescriptor::StatusOf(const std::string& name) const
{
    return FileStatus::Look(mNumber, name.c_str(), 0);
}

bool FolderDescriptor::IsEmpty() const
{
    const auto listing = ListingOf(mNumber);
    while (const auto* entry = ::readdir(listing.get())) {
        if (!IsItselfOrAbove(entry->d_name)) {
            return false;
        }
    }
    return true;
}

bool FolderDescriptor::IsAt(const NativePath& path) const
{
    const auto own = FileStatus::Look(mNumber, "", AT_EMPTY_PATH);
    const auto there = StatusAt(path, Links::Followed);
    return own && there && own->IsSameFile(*there);
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

std::optional<FolderDescriptor::LockHolder> FolderDescriptor::Holder() const
{
    struct stat status
    {
    };
    if (::fstat(mNumber, &status) != 0) {
        return std::nullopt;
    }
    try {
        std::istringstream locks(SystemText("/proc/locks"));
        for (std::string line; std::getline(locks, line);) {
            std::istringstream words(line);
            std::string number;
            std::string kind;
            std::string duty;
            std::string access;
            std::string process;
            std::string place;
            words >> number >> kind >> duty >> access >> process >> place;
            if (kind == "FLOCK" && IsPlaceOf(place, status)) {
                return LockHolder { ProgramOf(process), process };
            }
        }
    } catch (const Failure&) {
        // A system that doesn't tell, or a process that has just ended.
    }
    return std::nullopt;
}

bool FolderDescriptor::IsWritableByOthers() const
{
    struct stat status
    {
    };
    return ::fstat(mNumber, &status) == 0 && (status.st_mode & (S_IWGRP | S_IWOTH)) != 0;
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
