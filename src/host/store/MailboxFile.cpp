#include "host/store/MailboxFile.h"

#include "host/files/FolderDescriptor.h"
#include "host/files/PathOperations.h"
#include "host/store/MailboxError.h"

#include <array>
#include <cstring>

namespace tempodial {

namespace {

constexpr std::size_t HeaderSize = 100;
/// Bytes that are checked in a few milliseconds: about two weeks of activities.
constexpr std::uint64_t SmallSize = std::uint64_t { 2 } << 20;
const std::string Restore = "move it away and put a good copy of the mailbox in its place, or start with a new mailbox";

std::uint32_t BigEndian(const unsigned char* bytes)
{
    return std::uint32_t { bytes[0] } << 24 | std::uint32_t { bytes[1] } << 16 | std::uint32_t { bytes[2] } << 8
        | std::uint32_t { bytes[3] };
}

std::uint64_t SizeOf(const NativePath& path)
{
    const auto status = StatusAt(path, Links::Followed);
    return status ? status->size : 0;
}

}

MailboxFile::MailboxFile(const std::string& path)
    : mPath(NativePath::Exactly(path))
    , mJournal(NativePath::Exactly(BehindLinks(mPath).Text() + "-wal"))
    , mJournalIndex(NativePath::Exactly(BehindLinks(mPath).Text() + "-shm"))
    , mDraft(NativePath::Exactly(path + ".new"))
{
}

MailboxFile::State MailboxFile::Examine(int newestVersion, bool isForReading) const
{
    // First of all, since whoever closes the mailbox in this moment empties it last.
    const bool hasJournal = HasJournal();
    const auto status = Look();
    if (!status) {
        if (hasJournal) {
            Refuse("is missing, while its journal " + mJournal.Text() + " is still there",
                "put the mailbox back beside its journal, or move the journal away to start with a new mailbox");
        }
        return State::Absent;
    }
    if (status->kind != FileStatus::Kind::File) {
        Refuse("is no file", "move it away, or name another profile");
    }
    const auto file = Open(isForReading);
    if (status->size == 0) {
        Refuse("is empty, so it is no mailbox", Restore);
    }
    std::array<char, HeaderSize> header {};
    try {
        file.Read(header.data(), header.size());
    } catch (const SystemFailure& failure) {
        Refuse("can't be read (" + failure.Reason() + ")", "check the disk");
    }
    CheckHeader(reinterpret_cast<const unsigned char*>(header.data()), status->size, hasJournal, newestVersion);
    return hasJournal ? State::Unclean : State::Clean;
}

bool MailboxFile::IsAlone() const
{
    if (StatusAt(mJournalIndex, Links::Followed) || MayWrite(NativePath::Exactly(mJournalIndex.Folder()))) {
        return false;
    }
    if (HasJournal()) {
        Refuse("has a journal, " + mJournal.Text() + ", which can't be read in a folder that can't be written",
            "make the folder writable, or copy the profile to another");
    }
    return true;
}

bool MailboxFile::IsSmall() const
{
    return SizeOf(mPath) <= SmallSize;
}

std::string MailboxFile::NewDraft() const
{
    RemoveDraft();
    try {
        const FileDescriptor file(mDraft, Opening::New);
    } catch (const SystemFailure& failure) {
        RefuseToMake(failure);
    }
    return mDraft.Text();
}

void MailboxFile::TakeDraft() const
{
    try {
        Rename(mDraft, mPath);
        FolderDescriptor(NativePath::Exactly(mPath.Folder())).Sync();
    } catch (const SystemFailure& failure) {
        RefuseToMake(failure);
    }
}

void MailboxFile::RemoveDraft() const
{
    for (const auto* suffix : { "", "-journal", "-wal", "-shm" }) {
        Discard(NativePath::Exactly(mDraft.Text() + suffix));
    }
}

std::optional<FileStatus> MailboxFile::Look() const
{
    try {
        return StatusOf(mPath, Links::Followed);
    } catch (const SystemFailure& failure) {
        if (!failure.IsAbsence()) {
            Refuse("can't be looked at (" + failure.Reason() + ")", "check the folder it lies in");
        }
        return std::nullopt;
    }
}

FileDescriptor MailboxFile::Open(bool isForReading) const
{
    try {
        if (isForReading || MayWrite(mPath)) {
            return { mPath, Opening::Reading };
        }
    } catch (const Failure&) {
        // Told below.
    }
    Refuse(isForReading ? "can't be read" : "can't be read and written", "check who owns it and its permissions");
}

bool MailboxFile::HasJournal() const
{
    return SizeOf(mJournal) > 0;
}

void MailboxFile::CheckHeader(const unsigned char* header, std::uint64_t size, bool hasJournal, int newestVersion) const
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
    if (!hasJournal && size < pageSize * BigEndian(header + pageCountAt)) {
        Refuse("is damaged: it is shorter than it says", Restore);
    }
}

void MailboxFile::RefuseToMake(const SystemFailure& failure) const
{
    Refuse("can't be made (" + failure.Reason() + ")", "check the folder and its permissions");
}

void MailboxFile::Refuse(const std::string& what, const std::string& remedy) const
{
    throw MailboxError("the mailbox " + mPath.Text() + " " + what + ": " + remedy);
}

}
