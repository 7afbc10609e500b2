#pragma once

#include <string>

namespace tempodial {

/// What a line of a text file is that was read: all of it, one at the end of the file that has no line end yet, or one
/// that is too long to be given.
enum class LineKind { Whole, Unended, TooLong };

/// A text file opened for reading, writing or appending; it is closed with its last reference at the latest.
class TextStream
{
public:
    virtual ~TextStream() = default;

    /// The text up to the next line end, without it; past the end fails (62), on a stream for writing (54).
    virtual std::string ReadLine() = 0;
    /// What the line read last is, as far as that is known.
    virtual LineKind LastLine() const { return LineKind::Whole; }
    /// The rest of the text; at the end, so of an empty file, fails (62), on a stream for writing (54).
    virtual std::string ReadAll() = 0;
    /// Writes a text as it is; fails on a stream for reading (54) and when the disk refuses (61, 57).
    virtual void Write(const std::string& text) = 0;
    /// Writes a text and a line end; fails as `Write` does.
    virtual void WriteLine(const std::string& text) = 0;
    /// Closes the file. What was written to a file opened for writing takes the place of the old file only now, as a
    /// whole and safe on disk; fails when the disk refuses (61, 57), and the old file then stays.
    virtual void Close() = 0;
};

}
