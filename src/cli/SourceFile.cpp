#include "cli/SourceFile.h"

#include "base/Failure.h"
#include "cli/CommandError.h"
#include "host/files/Uninterrupted.h"
#include "sources/SourceReader.h"

#include <unistd.h>

namespace tempodial {

namespace {

constexpr std::size_t PieceSize = std::size_t { 64 } << 10;
constexpr std::string_view StandardInput = "-";

void RequireBytes(std::int64_t bytes)
{
    if (bytes > MostSourceBytes) {
        throw CommandError("the file is larger than 2 GiB: import it in parts");
    }
}

}

SourceFile::SourceFile(const std::string& path)
    : mBuffer(path)
{
    // What the buffer throws is what went wrong.
    mStream.exceptions(std::ios::badbit);
}

SourceFile::Buffer::Buffer(const std::string& path)
    : mPath(path)
    , mPiece(PieceSize)
{
    if (path != StandardInput) {
        try {
            mFile.emplace(NativePath::Exactly(path), Opening::Reading);
        } catch (const Failure& failure) {
            throw CommandError(path + " can't be read: " + failure.Description()
                + ": name a file that an export was written to, or - for standard input");
        }
    }
    if (mFile) {
        RequireBytes(static_cast<std::int64_t>(mFile->Status().size));
    }
    mFirstSize = Fill();
    setg(mPiece.data(), mPiece.data(), mPiece.data() + mFirstSize);
}

SourceFile::Buffer::int_type SourceFile::Buffer::underflow()
{
    const auto size = Fill();
    setg(mPiece.data(), mPiece.data(), mPiece.data() + size);
    return size == 0 ? traits_type::eof() : traits_type::to_int_type(mPiece.front());
}

std::size_t SourceFile::Buffer::Fill()
{
    std::size_t size = 0;
    while (size < mPiece.size()) {
        std::size_t got = 0;
        if (mFile) {
            got = mFile->Read(mPiece.data() + size, mPiece.size() - size);
        } else {
            const auto read
                = Uninterrupted([&] { return ::read(STDIN_FILENO, mPiece.data() + size, mPiece.size() - size); });
            if (read < 0) {
                throw CommandError("standard input can't be read: give it the export, or name the file");
            }
            got = static_cast<std::size_t>(read);
        }
        if (got == 0) {
            break;
        }
        size += got;
    }
    mBytes += static_cast<std::int64_t>(size);
    RequireBytes(mBytes);
    return size;
}

}
