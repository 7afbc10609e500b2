#include "addin/win32/Win32File.h"

#include "addin/base/SystemText.h"
#include "addin/win32/ErrorFailure.h"

#include <utility>

namespace tempodial {

Win32File::Win32File(const std::string& path, const Opening& opening)
    // Others may read and write meanwhile, as the tracker does.
    : mHandle(CreateFileW(Wide(path).c_str(), opening.access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
        nullptr, static_cast<DWORD>(opening.disposition), opening.flags, nullptr))
{
    if (mHandle == INVALID_HANDLE_VALUE) {
        throw FailureOfLastError();
    }
}

std::size_t Win32File::Read(char* buffer, std::size_t size)
{
    DWORD count = 0;
    if (ReadFile(mHandle, buffer, static_cast<DWORD>(size), &count, nullptr) == FALSE) {
        throw FailureOfLastError();
    }
    return count;
}

void Win32File::Write(std::string_view bytes)
{
    while (!bytes.empty()) {
        DWORD count = 0;
        if (WriteFile(mHandle, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) == FALSE) {
            throw FailureOfLastError();
        }
        bytes.remove_prefix(count);
    }
}

void Win32File::Flush()
{
    if (FlushFileBuffers(mHandle) == FALSE) {
        throw FailureOfLastError();
    }
}

void Win32File::Close()
{
    const auto handle = std::exchange(mHandle, INVALID_HANDLE_VALUE);
    if (handle != INVALID_HANDLE_VALUE) {
        CloseHandle(handle);
    }
}

}
