#pragma once

#include "platform/system/TextStream.h"
#include "portable/TextEncoding.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace tempodial {

/// Reads the lines of an open file, in memory that doesn't grow with the file. Its text is UTF-8, but for lines that
/// aren't valid, which are decoded in another way.
class TextReader
{
public:
    /// Puts up to that many bytes of the file into a buffer, and tells how many they were, 0 at its end.
    using Source = std::function<std::size_t(char* buffer, std::size_t size)>;

    TextReader(Source source, TextDecoder decoder);

    /// Reads as `TextStream` does; a line of more than 1 MiB is given as an empty one.
    std::string ReadLine();
    /// What the line read last is.
    LineKind LastLine() const { return mLastLine; }
    /// Reads as `TextStream` does; more than 64 MiB fail (7).
    std::string ReadAll();
    /// Forgets what was read ahead.
    void Drop() { mNext = mEnd = 0; }

private:
    /// True when there are bytes in the buffer, read now if need be.
    bool Fill();

    Source mSource;
    TextDecoder mDecoder;
    std::unique_ptr<char[]> mBuffer;
    std::size_t mNext = 0;
    std::size_t mEnd = 0;
    LineKind mLastLine = LineKind::Whole;
};

}
