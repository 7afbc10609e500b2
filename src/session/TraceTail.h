#pragma once

#include "platform/system/FileSystemObject.h"
#include "session/Profile.h"

#include <cstddef>
#include <deque>
#include <string>
#include <vector>

namespace tempodial {

/// The last lines of a trace.
class TraceTail
{
public:
    /// Keeps up to that many lines.
    explicit TraceTail(std::size_t lines)
        : mLimit(lines)
    {
    }

    /// Reads the trace of a profile, the older file before the newer one; an absent one adds nothing. Fails as opening
    /// and reading do.
    void Read(const Profile& profile);
    /// The lines kept, oldest first.
    std::vector<std::string> Lines() const { return { mLines.begin(), mLines.end() }; }

private:
    void Read(FileSystemObject& fileSystem, const std::string& path);

    std::size_t mLimit;
    std::deque<std::string> mLines;
};

}
