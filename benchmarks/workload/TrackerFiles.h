#pragma once

#include "base/Date.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// Writes the tracker files of days into a folder.
class TrackerFiles
{
public:
    explicit TrackerFiles(std::string folder)
        : mFolder(std::move(folder))
    {
    }

    /// Writes a file of that many lines for each of the days up to a last one. Fails with `std::runtime_error` when a
    /// file can't be written.
    void Write(Date last, std::int64_t days, std::int64_t lines) const;
    /// The path of a day's file.
    std::string Path(Date day) const;

private:
    std::string mFolder;
};

}
