#pragma once

#include "host/files/FileDescriptor.h"

#include <cstdint>
#include <istream>
#include <optional>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// A file that is read from its beginning to its end, or standard input, which is called "-".
class SourceFile
{
public:
    /// Fails with `CommandError` when the file can't be opened or read.
    explicit SourceFile(const std::string& path);

    /// What it begins with, as far as that has come.
    std::string_view Beginning() const { return mBuffer.Beginning(); }
    /// All of it, once. Reading fails with `CommandError`, also when it is too large.
    std::istream& Stream() { return mStream; }

private:
    /// Reads in pieces, of which the first is there from the beginning.
    class Buffer : public std::streambuf
    {
    public:
        explicit Buffer(const std::string& path);

        std::string_view Beginning() const { return { mPiece.data(), mFirstSize }; }

    protected:
        int_type underflow() override;

    private:
        std::size_t Fill();

        std::string mPath;
        std::optional<FileDescriptor> mFile;
        std::vector<char> mPiece;
        std::size_t mFirstSize = 0;
        std::int64_t mBytes = 0;
    };

    Buffer mBuffer;
    std::istream mStream { &mBuffer };
};

}
