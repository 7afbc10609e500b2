#pragma once

#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace tempodial {

/// A file in memory, which programs of the same user can read as long as this lives.
class MemoryFile
{
public:
    explicit MemoryFile(std::string_view content)
        : mDescriptor(::memfd_create("tempodial", MFD_CLOEXEC))
    {
        while (!content.empty()) {
            const auto written = ::write(mDescriptor, content.data(), content.size());
            if (written <= 0) {
                break;
            }
            content.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    ~MemoryFile() { ::close(mDescriptor); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::string Path() const { return "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(mDescriptor); }

private:
    int mDescriptor;
};

}
