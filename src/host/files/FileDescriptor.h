#pragma once

#include "host/files/FileStatus.h"
#include "host/files/NativePath.h"

#include <cstddef>
#include <ctime>
#include <limits>
#include <string>
#include <string_view>

namespace tempodial {

/// What a file is opened for. Links are followed for reading only.
enum class Opening {
    Reading,
    /// A new file is made when there is none; then no link is followed.
    ReadingOrNew,
    /// A file that is there, without changing anything yet.
    Writing,
    /// A file that isn't there yet, for writing.
    New,
    Appending,
    AppendingOrNew,
};

/// An open regular file.
class FileDescriptor
{
public:
    /// Opens a file and never waits. New files are the user's alone. An absent file fails (53), an absent folder (76),
    /// a folder, a pipe, a device or a forbidden file (70).
    FileDescriptor(const NativePath& path, Opening opening);
    FileDescriptor(FileDescriptor&& other) noexcept;
    FileDescriptor& operator=(FileDescriptor&&) = delete;
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor();

    /// True until it is closed.
    bool IsOpen() const { return mNumber >= 0; }
    /// The system's number of it, negative when it is closed.
    int Number() const { return mNumber; }
    /// The file as it was when it was opened.
    const FileStatus& Status() const { return mStatus; }
    /// Fails (70) when the owner may not write it.
    void RequireWritable() const;
    /// Fails (70) when another program holds a lock that keeps readers out.
    void RequireUnlocked() const;
    /// Reads up to that many bytes, 0 at the end of the file.
    std::size_t Read(char* buffer, std::size_t length) const;
    /// Reads the rest; more than that many bytes fail (7).
    std::string ReadAll(std::size_t limit = std::numeric_limits<std::size_t>::max()) const;
    /// Writes all of it; fails when the disk refuses (61, 57).
    void Write(std::string_view bytes) const;
    /// Makes what was written safe on disk.
    void Sync() const;
    /// The time of the file's last change.
    timespec ModificationTime() const;
    /// Gives the file another time of last change.
    void SetModificationTime(const timespec& moment) const;
    /// Closes the file; harmless when it is closed.
    void Close();

private:
    int mNumber;
    FileStatus mStatus;
};

}
