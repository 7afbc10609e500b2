#include "host/files/ArchiveModule.h"

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <array>
#include <cerrno>
#include <exception>
#include <memory>

namespace tempodial {

namespace {

using Archive = struct archive;
using Entry = struct archive_entry;

constexpr std::size_t PieceSize = 65536;
constexpr int FileMode = 0600;
constexpr int FolderMode = 0700;

struct FreeArchive
{
    void operator()(Archive* archive) const { archive_free(archive); }
};

struct FreeEntry
{
    void operator()(Entry* entry) const { archive_entry_free(entry); }
};

using OwnedArchive = std::unique_ptr<Archive, FreeArchive>;

/// The other end of an archive, and what failed there, which may not pass through the library.
template <class End> struct Door
{
    const End& end;
    std::exception_ptr failure = nullptr;

    /// Fails again with what failed.
    void Rethrow() const
    {
        if (failure) {
            std::rethrow_exception(failure);
        }
    }
};

la_ssize_t Put(Archive* archive, void* client, const void* buffer, std::size_t length)
{
    auto& door = *static_cast<Door<ByteSink>*>(client);
    try {
        door.end({ static_cast<const char*>(buffer), length });
        return static_cast<la_ssize_t>(length);
    } catch (...) {
        door.failure = std::current_exception();
        archive_set_error(archive, EIO, "refused");
        return -1;
    }
}

la_ssize_t Take(Archive* archive, void* client, const void** buffer)
{
    auto& door = *static_cast<Door<ByteSource>*>(client);
    try {
        const auto bytes = door.end();
        *buffer = bytes.data();
        return static_cast<la_ssize_t>(bytes.size());
    } catch (...) {
        door.failure = std::current_exception();
        archive_set_error(archive, EIO, "refused");
        return ARCHIVE_FATAL;
    }
}

std::string ProblemOf(Archive* archive)
{
    const auto* text = archive_error_string(archive);
    return text == nullptr || *text == '\0' ? "it can't be read" : text;
}

/// Writes a member with its content; false when the library refuses.
bool PackMember(Archive* archive, const ArchiveMember& member, ArchiveSource& source)
{
    const bool isFolder = member.kind == ArchiveMember::Kind::Folder;
    const std::unique_ptr<Entry, FreeEntry> entry(archive_entry_new());
    archive_entry_set_pathname(entry.get(), (member.path + (isFolder ? "/" : "")).c_str());
    archive_entry_set_filetype(entry.get(), isFolder ? AE_IFDIR : AE_IFREG);
    archive_entry_set_perm(entry.get(), isFolder ? FolderMode : FileMode);
    archive_entry_set_size(entry.get(), isFolder ? 0 : static_cast<la_int64_t>(member.size));
    archive_entry_set_mtime(entry.get(), member.changed, 0);
    if (archive_write_header(archive, entry.get()) != ARCHIVE_OK) {
        return false;
    }
    std::array<char, PieceSize> buffer {};
    for (auto left = isFolder ? 0 : member.size; left > 0;) {
        const auto length = source.Read(buffer.data(), std::min<std::uint64_t>(buffer.size(), left));
        if (archive_write_data(archive, buffer.data(), length) != static_cast<la_ssize_t>(length)) {
            return false;
        }
        left -= length;
    }
    return true;
}

OwnedArchive NewReader()
{
    OwnedArchive archive(archive_read_new());
    // Exactly once compressed; what is compressed more often is no archive of ours.
    archive_read_append_filter(archive.get(), ARCHIVE_FILTER_GZIP);
    return archive;
}

ArchiveMember MemberOf(Entry* entry)
{
    ArchiveMember member;
    const auto* name = archive_entry_pathname(entry);
    name = name == nullptr ? archive_entry_pathname_utf8(entry) : name;
    member.path = name == nullptr ? "" : name;
    if (member.path.size() > 1 && member.path.back() == '/') {
        member.path.pop_back();
    }
    const bool isPlain = archive_entry_hardlink(entry) == nullptr && archive_entry_symlink(entry) == nullptr
        && archive_entry_sparse_count(entry) == 0;
    const auto type = archive_entry_filetype(entry);
    member.kind = isPlain && type == AE_IFREG ? ArchiveMember::Kind::File
        : isPlain && type == AE_IFDIR         ? ArchiveMember::Kind::Folder
                                              : ArchiveMember::Kind::Other;
    member.size = static_cast<std::uint64_t>(std::max<la_int64_t>(0, archive_entry_size(entry)));
    member.changed = archive_entry_mtime(entry);
    return member;
}

/// Reads the content of the member in hand; false when the library can't.
template <class Taker> bool ReadContent(Archive* archive, Taker&& take)
{
    std::array<char, PieceSize> buffer {};
    for (;;) {
        const auto length = archive_read_data(archive, buffer.data(), buffer.size());
        if (length <= 0) {
            return length == 0;
        }
        take(std::string_view(buffer.data(), static_cast<std::size_t>(length)));
    }
}

std::string Pack(ArchiveSource& source, const ByteSink& sink)
{
    Door<ByteSink> door { sink };
    const OwnedArchive archive(archive_write_new());
    archive_write_add_filter_gzip(archive.get());
    // Equal contents are equal archives.
    archive_write_set_filter_option(archive.get(), "gzip", "timestamp", nullptr);
    archive_write_set_format_gnutar(archive.get());
    archive_write_set_bytes_in_last_block(archive.get(), 1);
    bool isRight = archive_write_open(archive.get(), &door, nullptr, Put, nullptr) == ARCHIVE_OK;
    try {
        for (ArchiveMember member; isRight && source.Next(member);) {
            isRight = PackMember(archive.get(), member, source);
        }
    } catch (...) {
        archive_write_fail(archive.get());
        throw;
    }
    isRight = isRight && archive_write_close(archive.get()) == ARCHIVE_OK;
    door.Rethrow();
    return isRight ? "" : ProblemOf(archive.get());
}

std::string Unpack(const ByteSource& source, ArchiveTarget& target)
{
    Door<ByteSource> door { source };
    const auto archive = NewReader();
    archive_read_support_format_tar(archive.get());
    auto result = archive_read_open(archive.get(), &door, nullptr, Take, nullptr);
    while (result == ARCHIVE_OK) {
        Entry* entry = nullptr;
        result = archive_read_next_header(archive.get(), &entry);
        if (result == ARCHIVE_WARN && entry != nullptr) {
            result = ARCHIVE_OK; // a name in other letters than this system's
        }
        if (result == ARCHIVE_OK) {
            target.Begin(MemberOf(entry));
            const bool isRead = ReadContent(archive.get(), [&target](std::string_view bytes) { target.Write(bytes); });
            result = isRead ? ARCHIVE_OK : ARCHIVE_FATAL;
        }
    }
    door.Rethrow();
    return result == ARCHIVE_EOF ? "" : ProblemOf(archive.get());
}

std::string Expand(const ByteSource& source, const ByteSink& sink)
{
    Door<ByteSource> door { source };
    const auto archive = NewReader();
    archive_read_support_format_raw(archive.get());
    Entry* entry = nullptr;
    const bool isRead = archive_read_open(archive.get(), &door, nullptr, Take, nullptr) == ARCHIVE_OK
        && archive_read_next_header(archive.get(), &entry) == ARCHIVE_OK && ReadContent(archive.get(), sink);
    door.Rethrow();
    return isRead ? "" : ProblemOf(archive.get());
}

}

extern "C" {

__attribute__((visibility("default"))) void TempodialPackArchive(
    ArchiveSource& source, const ByteSink& sink, std::string& problem)
{
    problem = Pack(source, sink);
}

__attribute__((visibility("default"))) void TempodialUnpackArchive(
    const ByteSource& source, ArchiveTarget& target, std::string& problem)
{
    problem = Unpack(source, target);
}

__attribute__((visibility("default"))) void TempodialExpandArchive(
    const ByteSource& source, const ByteSink& sink, std::string& problem)
{
    problem = Expand(source, sink);
}
}

}
