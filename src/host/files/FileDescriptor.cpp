#include "host/files/FileDescriptor.h"

#include "host/files/SystemFailure.h"
#include "host/files/Uninterrupted.h"

#include <array>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

int FlagsFor(Opening opening)
{
    switch (opening) {
    case Opening::Reading:
        return O_RDONLY;
    case Opening::ReadingOrNew:
        return O_RDONLY | O_CREAT | O_NOFOLLOW;
    case Opening::Writing:
        return O_WRONLY | O_NOFOLLOW;
    case Opening::New:
        return O_WRONLY | O_CREAT | O_EXCL;
    case Opening::Appending:
        return O_WRONLY | O_APPEND | O_NOFOLLOW;
    case Opening::AppendingOrNew:
        return O_WRONLY | O_APPEND | O_NOFOLLOW | O_CREAT;
    }
    throw Failure(Error::InvalidCall);
}

int Open(const NativePath& path, Opening opening)
{
    const auto flags = FlagsFor(opening) | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const auto number = Uninterrupted([&] { return ::open(path.CText(), flags, S_IRUSR | S_IWUSR); });
    if (number < 0) {
        throw path.FailureOf(errno);
    }
    return number;
}

}

FileDescriptor::FileDescriptor(const NativePath& path, Opening opening)
    : mNumber(Open(path, opening))
{
    const auto status = FileStatus::Look(mNumber, "", AT_EMPTY_PATH);
    if (!status || status->kind != FileStatus::Kind::File) {
        Close();
        throw Failure(Error::PermissionDenied);
    }
    mStatus = *status;
}

FileDescriptor::FileDescriptor(FileDescriptor&& other) noexcept
    : mNumber(std::exchange(other.mNumber, -1))
    , mStatus(other.mStatus)
{
}

FileDescriptor::~FileDescriptor()
{
    if (IsOpen()) {
        ::close(mNumber);
    }
}

void FileDescriptor::RequireWritable() const
{
    if (!mStatus.isWritable) {
        throw Failure(Error::PermissionDenied);
    }
}

void FileDescriptor::RequireUnlocked() const
{
    if (::flock(mNumber, LOCK_SH | LOCK_NB) == 0) {
        ::flock(mNumber, LOCK_UN);
    } else if (errno == EWOULDBLOCK) {
        throw Failure(Error::PermissionDenied);
    }
    struct flock lock
    {
    };
    lock.l_type = F_RDLCK;
    lock.l_whence = SEEK_SET;
    if (::fcntl(mNumber, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK) {
        throw Failure(Error::PermissionDenied);
    }
}

std::size_t FileDescriptor::Read(char* buffer, std::size_t length) const
{
    const auto count = Uninterrupted([&] { return ::read(mNumber, buffer, length); });
    if (count < 0) {
        throw SystemFailure(errno);
    }
    return static_cast<std::size_t>(count);
}

std::string FileDescriptor::ReadAll(std::size_t limit) const
{
    if (mStatus.size > limit) {
        throw Failure(Error::OutOfMemory);
    }
    std::string content;
    content.reserve(static_cast<std::size_t>(mStatus.size));
    std::array<char, 65536> buffer {};
    while (const auto count = Read(buffer.data(), buffer.size())) {
        if (content.size() + count > limit) {
            throw Failure(Error::OutOfMemory);
        }
        content.append(buffer.data(), count);
    }
    return content;
}

void FileDescriptor::Write(std::string_view bytes) const
{
    while (!bytes.empty()) {
        const auto count = Uninterrupted([&] { return ::write(mNumber, bytes.data(), bytes.size()); });
        if (count < 0) {
            throw SystemFailure(errno);
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

void FileDescriptor::Sync() const
{
    if (::fsync(mNumber) != 0) {
        throw SystemFailure(errno);
    }
}

timespec FileDescriptor::ModificationTime() const
{
    struct stat status
    {
    };
    if (::fstat(mNumber, &status) != 0) {
        throw SystemFailure(errno);
    }
    return status.st_mtim;
}

void FileDescriptor::SetModificationTime(const timespec& moment) const
{
    const timespec times[] = { { 0, UTIME_OMIT }, moment };
    if (::futimens(mNumber, times) != 0) {
        throw SystemFailure(errno);
    }
}

void FileDescriptor::Close()
{
    if (IsOpen() && ::close(std::exchange(mNumber, -1)) != 0 && errno != EINTR) {
        throw SystemFailure(errno);
    }
}

}
