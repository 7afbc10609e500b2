#pragma once

#include "host/files/FileDescriptor.h"
#include "host/files/FileStatus.h"
#include "host/files/NativePath.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tempodial {

/// The mailbox's file as it lies on disk, looked at without SQLite: what isn't a mailbox is never touched.
class MailboxFile
{
public:
    /// What was found under the name.
    enum class State {
        Absent,
        /// A mailbox that was closed in good order.
        Clean,
        /// A mailbox whose last user didn't get to close it.
        Unclean,
    };

    /// The number by which a mailbox is told from other SQLite files.
    static constexpr std::uint32_t ApplicationId = 0x54444d42;

    explicit MailboxFile(const std::string& path);

    /// What lies under the name; throws `MailboxError` for anything but nothing or a mailbox of at most that version,
    /// and for one that can't be written, unless it is only to be read.
    State Examine(int newestVersion, bool isForReading = false) const;
    /// True when SQLite can't have or make the files beside it that it needs for reading beside a writer, so that there
    /// is no writer either. Throws `MailboxError` when a journal has something in it that can't be read so.
    bool IsAlone() const;
    /// True when the file is so small that checking all of it at each opening isn't felt.
    bool IsSmall() const;
    /// The name of a new, empty file beside the mailbox, private to the user, in which a new mailbox is made; throws
    /// `MailboxError` when there can be none.
    std::string NewDraft() const;
    /// Puts the finished draft in the mailbox's place, safe on disk; throws `MailboxError` when the disk refuses.
    void TakeDraft() const;
    /// Removes what is left of a draft.
    void RemoveDraft() const;

private:
    /// What stands under the name, nothing when nothing does.
    std::optional<FileStatus> Look() const;
    FileDescriptor Open(bool isForReading) const;
    bool HasJournal() const;
    void CheckHeader(const unsigned char* header, std::uint64_t size, bool hasJournal, int newestVersion) const;
    [[noreturn]] void RefuseToMake(const SystemFailure& failure) const;
    [[noreturn]] void Refuse(const std::string& what, const std::string& remedy) const;

    NativePath mPath;
    /// SQLite follows links, and so keeps the journal beside the file that they lead to.
    NativePath mJournal;
    /// What SQLite keeps there while it reads and writes with a journal.
    NativePath mJournalIndex;
    NativePath mDraft;
};

}
