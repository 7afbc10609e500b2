#include "host/system/FileReplacer.h"

#include <cstddef>
#include <fcntl.h>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t BufferSize = 65536;

}

void RequireReplaceable(const NativePath& path, bool mayBeAbsent)
{
    try {
        const FileDescriptor file(path, O_WRONLY | O_NOFOLLOW);
        file.RequireWritable();
        file.RequireUnlocked();
    } catch (const Failure& failure) {
        if (!mayBeAbsent || !failure.Is(Error::FileNotFound)) {
            throw;
        }
    }
}

FileReplacer::FileReplacer(const NativePath& path, bool create)
{
    RequireReplaceable(path, create);
    mReplacement.emplace(path);
}

FileReplacer::~FileReplacer()
{
    try {
        FileReplacer::Close();
    } catch (...) {
        // Whoever wants to know of a failure closes the stream.
    }
}

void FileReplacer::Write(const std::string& text)
{
    if (!mReplacement) {
        throw Failure(Error::BadFileName);
    }
    mBuffer += text;
    if (mBuffer.size() >= BufferSize) {
        Flush();
    }
}

void FileReplacer::Close()
{
    if (!mReplacement) {
        return;
    }
    try {
        Flush();
        mReplacement->Commit();
    } catch (...) {
        mReplacement.reset();
        throw;
    }
    mReplacement.reset();
}

void FileReplacer::Flush()
{
    const auto bytes = std::exchange(mBuffer, {});
    mReplacement->Write(bytes);
}

}
