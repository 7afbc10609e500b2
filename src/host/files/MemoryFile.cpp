#include "host/files/MemoryFile.h"

#include "host/files/SystemFailure.h"
#include "host/files/Uninterrupted.h"

#include <array>
#include <cerrno>
#include <sys/mman.h>
#include <unistd.h>

namespace tempodial {

MemoryFile::MemoryFile()
    : mNumber(::memfd_create("tempodial", MFD_CLOEXEC))
{
    if (mNumber < 0) {
        throw SystemFailure(errno);
    }
}

MemoryFile::~MemoryFile()
{
    ::close(mNumber);
}

std::string MemoryFile::Text() const
{
    std::string text;
    std::array<char, 65536> buffer {};
    for (;;) {
        const auto position = static_cast<off_t>(text.size());
        const auto count = Uninterrupted([&] { return ::pread(mNumber, buffer.data(), buffer.size(), position); });
        if (count < 0) {
            throw SystemFailure(errno);
        }
        if (count == 0) {
            return text;
        }
        text.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

}
