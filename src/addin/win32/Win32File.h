#pragma once

#include "addin/base/Windows.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tempodial {

/// An open file. What fails, fails as work on files does; a closed one fails (52).
class Win32File
{
public:
    /// What a file is opened for, and whether it may, must or must not be there.
    struct Opening
    {
        DWORD access;
        int disposition;
        DWORD flags = FILE_ATTRIBUTE_NORMAL;
    };

    Win32File(const std::string& path, const Opening& opening);
    ~Win32File() { Close(); }
    Win32File(const Win32File&) = delete;
    Win32File& operator=(const Win32File&) = delete;

    /// Reads up to that many bytes; how many they were, 0 at the end.
    std::size_t Read(char* buffer, std::size_t size);
    /// Writes all bytes.
    void Write(std::string_view bytes);
    /// Waits until what was written is safe on disk.
    void Flush();
    /// Closes the file; harmless when it is closed.
    void Close();

private:
    HANDLE mHandle;
};

}
