#include "host/files/FileDescriptor.h"

#include "host/files/SystemFailure.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

/// Repeats a system call for as long as a signal comes in between.
template <class Call> auto Uninterrupted(Call&& call)
{
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

}

FileDescriptor::FileDescriptor(const NativePath& path, int flags)
    : mNumber(Uninterrupted(
        [&] { return ::open(path.CText(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, S_IRUSR | S_IWUSR); }))
{
    if (mNumber < 0) {
        throw path.FailureOf(errno);
    }
    if (::fstat(mNumber, &mStatus) != 0 || !S_ISREG(mStatus.st_mode)) {
        Close();
        throw Failure(Error::PermissionDenied);
    }
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
    if ((mStatus.st_mode & S_IWUSR) == 0) {
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
    std::string content;
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

void SyncFolder(const std::string& folder)
{
    const auto number = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (number < 0) {
        throw SystemFailure(errno);
    }
    const auto error = ::fsync(number) == 0 ? 0 : errno;
    ::close(number);
    // Some file systems keep names safe by themselves and know no such call.
    if (error != 0 && error != EINVAL) {
        throw SystemFailure(error);
    }
}

}
