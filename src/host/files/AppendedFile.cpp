#include "host/files/AppendedFile.h"

#include <ctime>
#include <utility>

namespace tempodial {

namespace {

std::chrono::nanoseconds LastTick()
{
    std::timespec age {};
    ::clock_gettime(CLOCK_MONOTONIC_COARSE, &age);
    return std::chrono::seconds(age.tv_sec) + std::chrono::nanoseconds(age.tv_nsec);
}

}

std::optional<FileStatus> AppendedFile::LookAgain(const std::string& path)
{
    mIsSeen = false;
    if (!mFolder || path != mPath || mTick != LastTick()) {
        return std::nullopt;
    }
    auto status = mFolder->StatusOf(mName);
    mIsSeen = status && IsKept(path, *status);
    return mIsSeen ? status : std::nullopt;
}

void AppendedFile::Seen(const std::string& path, const NativePath& native, const FileStatus& status)
{
    mIsSeen = IsKept(path, status);
    mFolder.reset();
    if (!mIsSeen) {
        return;
    }
    mTick = LastTick();
    mName = native.Name();
    try {
        mFolder.emplace(NativePath::Exactly(native.Folder()));
    } catch (const Failure&) {
        // One that may not be read; each look goes all the way then.
    }
}

std::shared_ptr<const FileDescriptor> AppendedFile::Open(const std::string& path, bool create)
{
    if (std::exchange(mIsSeen, false) && path == mPath) {
        return mFile;
    }
    const NativePath native(path);
    mFile = nullptr;
    mFolder.reset();
    auto file = std::make_shared<FileDescriptor>(native, create ? Opening::AppendingOrNew : Opening::Appending);
    file->RequireWritable();
    mPath = path;
    mFile = std::move(file);
    return mFile;
}

bool AppendedFile::IsKept(const std::string& path, const FileStatus& status) const
{
    return mFile && path == mPath && status.IsSameFile(mFile->Status()) && status.isWritable;
}

}
