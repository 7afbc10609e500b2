#pragma once

#include "platform/system/FileSystemObject.h"

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

namespace tempodial {

/// The last lines of files that continue one another.
class TraceTail
{
public:
    /// Keeps up to that many lines.
    explicit TraceTail(std::size_t lines)
        : mLimit(lines)
    {
    }

    /// Reads a further file, later than those before; an absent one adds nothing. Fails as opening and reading do.
    void Read(FileSystemObject& fileSystem, const std::string& path);
    /// The lines kept, oldest first.
    std::vector<std::string> Lines() const { return { mLines.begin(), mLines.end() }; }

private:
    std::size_t mLimit;
    std::deque<std::string> mLines;
};

}
