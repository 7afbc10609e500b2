#pragma once

#include "host/files/NativePath.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace tempodial {

/// An open regular file.
class FileDescriptor
{
public:
    /// Opens a file with the system's flags and never waits. New files are the user's alone. An absent file fails (53),
    /// an absent folder (76), a folder, a pipe, a device or a forbidden file (70).
    FileDescriptor(const NativePath& path, int flags);
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
    const struct stat& Status() const { return mStatus; }
    /// Fails (70) when the owner may not write it.
    void RequireWritable() const;
    /// Fails (70) when another program holds a lock that keeps readers out.
    void RequireUnlocked() const;
    /// Reads up to that many bytes, 0 at the end of the file.
    std::size_t Read(char* buffer, std::size_t length) const;
    /// Reads the rest; more than that many bytes fail (7).
    std::string ReadAll(std::size_t limit) const;
    /// Writes all of it; fails when the disk refuses (61, 57).
    void Write(std::string_view bytes) const;
    /// Makes what was written safe on disk.
    void Sync() const;
    /// Gives the file another time of last change.
    void SetModificationTime(const timespec& moment) const;
    /// Closes the file; harmless when it is closed.
    void Close();

private:
    int mNumber;
    struct stat mStatus
    {
    };
};

/// Makes the names in a folder safe on disk.
void SyncFolder(const std::string& folder);

}
