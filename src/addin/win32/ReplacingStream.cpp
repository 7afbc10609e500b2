#include "addin/win32/ReplacingStream.h"

#include "addin/base/SystemText.h"
#include "addin/win32/ErrorFailure.h"

#include <cstddef>
#include <exception>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t KeptSize = 65536;
constexpr auto BesideEnding = ".new";

/// Fails unless a file may be put in the place of what stands at a path.
void RequireReplaceable(const std::string& path, bool create)
{
    const auto attributes = GetFileAttributesW(Wide(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const auto error = GetLastError();
        if (!create || error != ERROR_FILE_NOT_FOUND) {
            throw FailureOfError(error);
        }
    } else if ((attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0) {
        throw Failure(Error::PermissionDenied);
    }
}

}

ReplacingStream::ReplacingStream(std::string path, bool create, const FileText& text)
    : mPath(std::move(path))
    , mBeside(mPath + BesideEnding)
    , mText(text)
    , mExceptions(std::uncaught_exceptions())
{
    RequireReplaceable(mPath, create);
    mFile.emplace(mBeside, Win32File::Opening { .access = GENERIC_WRITE, .disposition = CREATE_ALWAYS });
}

ReplacingStream::~ReplacingStream()
{
    if (std::uncaught_exceptions() > mExceptions) {
        Discard();
        return;
    }
    try {
        ReplacingStream::Close();
    } catch (...) { // NOLINT(bugprone-empty-catch)
        // Whoever wants to know of a failure closes the stream.
    }
}

void ReplacingStream::Write(const std::string& text)
{
    if (!mFile) {
        throw Failure(Error::BadFileName);
    }
    mBuffer += mText.encode(text);
    if (mBuffer.size() >= KeptSize) {
        mFile->Write(std::exchange(mBuffer, {}));
    }
}

void ReplacingStream::Close()
{
    if (!mFile) {
        return;
    }
    try {
        mFile->Write(std::exchange(mBuffer, {}));
        mFile->Flush();
        mFile->Close();
        if (MoveFileExW(Wide(mBeside).c_str(), Wide(mPath).c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)
            == FALSE) {
            throw FailureOfLastError();
        }
        mFile.reset();
    } catch (...) {
        Discard();
        throw;
    }
}

void ReplacingStream::Discard()
{
    if (mFile) {
        mFile.reset();
        DeleteFileW(Wide(mBeside).c_str());
    }
}

}
