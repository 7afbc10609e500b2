#include "host/store/MailboxFile.h"

#include "host/store/MailboxError.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t HeaderSize = 100;
/// Bytes that are checked in a few milliseconds: about two weeks of activities.
constexpr std::uint64_t SmallSize = std::uint64_t { 2 } << 20;
const std::string Restore = "move it away and put a good copy of the mailbox in its place, or start with a new mailbox";

/// An open file descriptor that closes itself.
class Descriptor
{
public:
    explicit Descriptor(int number)
        : mNumber(number)
    {
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (mNumber >= 0) {
            ::close(mNumber);
        }
    }

    int Number() const { return mNumber; }

private:
    int mNumber;
};

std::uint32_t BigEndian(const unsigned char* bytes)
{
    return std::uint32_t { bytes[0] } << 24 | std::uint32_t { bytes[1] } << 16 | std::uint32_t { bytes[2] } << 8
        | std::uint32_t { bytes[3] };
}

std::uint64_t SizeOf(const std::string& path)
{
    struct stat info
    {
    };
    return ::stat(path.c_str(), &info) == 0 ? static_cast<std::uint64_t>(info.st_size) : 0;
}

}

MailboxFile::MailboxFile(std::string path)
    : mPath(std::move(path))
{
}

MailboxFile::State MailboxFile::Examine(int newestVersion) const
{
    struct stat info
    {
    };
    if (::stat(mPath.c_str(), &info) != 0) {
        if (errno != ENOENT) {
            Refuse(std::string("can't be looked at (") + std::strerror(errno) + ")", "check the folder it lies in");
        }
        if (HasJournal()) {
            Refuse("is missing, while its journal " + mPath + "-wal is still there",
                "put the mailbox back beside its journal, or move the journal away to start with a new mailbox");
        }
        return State::Absent;
    }
    if (!S_ISREG(info.st_mode)) {
        Refuse("is no file", "move it away, or name another profile");
    }
    const Descriptor file(::open(mPath.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.Number() < 0 || ::access(mPath.c_str(), W_OK) != 0) {
        Refuse("can't be read and written", "check who owns it and its permissions");
    }
    if (info.st_size == 0) {
        Refuse("is empty, so it is no mailbox", Restore);
    }
    std::array<unsigned char, HeaderSize> header {};
    const auto taken = ::pread(file.Number(), header.data(), header.size(), 0);
    if (taken < 0) {
        Refuse(std::string("can't be read (") + std::strerror(errno) + ")", "check the disk");
    }
    CheckHeader(header.data(), static_cast<std::uint64_t>(info.st_size), newestVersion);
    return HasJournal() ? State::Unclean : State::Clean;
}

bool MailboxFile::IsSmall() const
{
    return SizeOf(mPath) <= SmallSize;
}

std::string MailboxFile::NewDraft() const
{
    RemoveDraft();
    auto draft = DraftPath();
    const Descriptor file(::open(draft.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (file.Number() < 0) {
        Refuse(std::string("can't be made (") + std::strerror(errno) + ")", "check the folder and its permissions");
    }
    return draft;
}

void MailboxFile::TakeDraft() const
{
    if (std::rename(DraftPath().c_str(), mPath.c_str()) != 0) {
        Refuse(std::string("can't be made (") + std::strerror(errno) + ")", "check the folder and its permissions");
    }
    const auto folder = std::filesystem::path(mPath).parent_path();
    const Descriptor directory(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.Number() >= 0) {
        ::fsync(directory.Number());
    }
}

void MailboxFile::RemoveDraft() const
{
    for (const auto* suffix : { "", "-journal", "-wal", "-shm" }) {
        ::unlink((DraftPath() + suffix).c_str());
    }
}

bool MailboxFile::HasJournal() const
{
    return SizeOf(mPath + "-wal") > 0;
}

void MailboxFile::CheckHeader(const unsigned char* header, std::uint64_t size, int newestVersion) const
{
    constexpr std::size_t pageSizeAt = 16;
    constexpr std::size_t pageCountAt = 28;
    constexpr std::size_t versionAt = 60;
    constexpr std::size_t applicationAt = 68;
    if (size < HeaderSize || std::memcmp(header, "SQLite format 3", 16) != 0
        || BigEndian(header + applicationAt) != ApplicationId) {
        Refuse("isn't a mailbox", "move it away, or name another profile");
    }
    if (const auto version = BigEndian(header + versionAt); version > static_cast<std::uint32_t>(newestVersion)) {
        Refuse("comes from a newer version of Tempodial (mailbox version " + std::to_string(version) + ")",
            "use that version, or a newer one");
    }
    // The journal may hold pages that the file doesn't have yet, so the length only counts without one.
    const std::uint64_t written = std::uint64_t { header[pageSizeAt] } << 8 | header[pageSizeAt + 1];
    const std::uint64_t pageSize = written == 1 ? 65536 : written;
    if (!HasJournal() && size < pageSize * BigEndian(header + pageCountAt)) {
        Refuse("is damaged: it is shorter than it says", Restore);
    }
}

void MailboxFile::Refuse(const std::string& what, const std::string& remedy) const
{
    throw MailboxError("the mailbox " + mPath + " " + what + ": " + remedy);
}

}
