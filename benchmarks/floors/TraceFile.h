#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tempodial {

/// Lines of a trace as the product has to write them, with a text of their own: the file is looked at, opened for
/// appending, written and closed for each block, and gives way to a new one when it is full.
class TraceFile
{
public:
    /// Lines of that many bytes in all, which go into a file in a folder in blocks of 2,500 characters, or one by one.
    TraceFile(const std::string& folder, std::int64_t lines, std::int64_t bytes, bool inBlocks);

    /// Writes the lines that are due when a part of the work is done.
    void Advance(std::int64_t done, std::int64_t all);
    /// Writes what is left, which is all when nothing was due yet.
    void Finish();

private:
    void Flush();

    std::string mPath;
    std::string mOldPath;
    std::int64_t mLines;
    std::int64_t mWritten = 0;
    std::string mLine;
    std::string mBuffer;
    bool mInBlocks;
};

}
