#pragma once

#include "host/files/NativePath.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// A file of the data folder or of its folder of kept files.
struct DataFile
{
    std::string name;
    NativePath path;
    /// The key of the day when it is one of the tracker's files, finished, kept or neither; empty for another.
    std::string dayKey;
    bool isFinished = false;

    /// All of a data folder, in order; none where there is no folder.
    static std::vector<DataFile> In(const std::string& folder);
    /// Its lines as text, without their ends. Fails as opening and reading do.
    std::vector<std::string> Lines() const;
    /// Fails (70) when it can't be replaced.
    void RequireWritable() const;
    /// Takes the lines out that are told; the rest stays byte for byte, and what is added meanwhile too. A file of the
    /// tracker that has nothing but its heading afterwards goes, unless lines may still come. The numbers count from 0.
    /// Fails as files do.
    void TakeOut(const std::function<bool(std::size_t number, const std::string& line)>& isGone, bool mayGrow) const;
};

}
