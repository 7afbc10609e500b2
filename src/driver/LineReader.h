#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace tempodial {

/// Reads lines from a file descriptor. A line may hold any bytes; of one that is too long only the beginning is kept.
class LineReader
{
public:
    /// A line, without its end.
    struct Line
    {
        std::string text;
        bool isTooLong = false;
    };

    /// Reads from a descriptor, which stays open, and keeps up to that many bytes of a line.
    LineReader(int descriptor, std::size_t longest)
        : mDescriptor(descriptor)
        , mLongest(longest)
    {
    }

    /// The next line, the last one with or without an end; nothing at the end of the input, or when it can't be read.
    std::optional<Line> Next();

private:
    bool Fill();

    int mDescriptor;
    std::size_t mLongest;
    std::string mBuffer;
    std::size_t mRead = 0;
};

}
