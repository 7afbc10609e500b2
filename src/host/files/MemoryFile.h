#pragma once

#include <string>

namespace tempodial {

/// An open file that stands in no folder and lives in memory, for a library that writes to a file.
class MemoryFile
{
public:
    /// Begins with no content; fails when the system has none to give (7, 75).
    MemoryFile();
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    /// The system's number of it.
    int Descriptor() const { return mNumber; }
    /// All that was written.
    std::string Text() const;

private:
    int mNumber;
};

}
