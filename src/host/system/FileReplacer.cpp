#include "host/system/FileReplacer.h"

#include <cstddef>
#include <exception>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t KeptBytes = 65536;

}

FileReplacer::FileReplacer(const NativePath& path, bool create, std::function<void()> beforeChange)
    : mReplacement(std::in_place, path, create ? ReplacementFile::Old::MayBeAbsent : ReplacementFile::Old::MustExist)
    , mBeforeChange(std::move(beforeChange))
    , mExceptions(std::uncaught_exceptions())
{
}

FileReplacer::~FileReplacer()
{
    if (std::uncaught_exceptions() > mExceptions) {
        return;
    }
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
    if (mBuffer.size() >= KeptBytes) {
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
        if (mBeforeChange) {
            mBeforeChange();
        }
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
