#include "host/files/NativePath.h"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <utility>

namespace tempodial {

namespace {

bool Exists(const std::string& path)
{
    struct stat status
    {
    };
    return ::lstat(path.c_str(), &status) == 0;
}

bool IsFolder(const std::string& path)
{
    struct stat status
    {
    };
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// Length of the longest beginning of a path that is a folder as it stands.
std::size_t LengthOfKnownFolder(const std::string& path)
{
    auto end = path.find_last_of("/\\");
    while (end != std::string::npos && end > 0 && !IsFolder(path.substr(0, end))) {
        end = path.find_last_of("/\\", end - 1);
    }
    return end == std::string::npos ? 0 : end;
}

}

NativePath::NativePath(std::string path)
    : NativePath(AsItIs(), std::move(path))
{
    if (mText.find('\\') != std::string::npos && !Exists(mText)) {
        const auto known = static_cast<std::string::difference_type>(LengthOfKnownFolder(mText));
        std::replace(mText.begin() + known, mText.end(), '\\', '/');
    }
}

NativePath::NativePath(AsItIs, std::string path)
    : mText(std::move(path))
{
    if (mText.find('\0') != std::string::npos) {
        throw Failure(Error::BadFileName);
    }
}

std::string NativePath::Folder() const
{
    const auto last = mText.rfind('/');
    if (last == std::string::npos) {
        return ".";
    }
    return last == 0 ? "/" : mText.substr(0, last);
}

std::string NativePath::Name() const
{
    const auto last = mText.rfind('/');
    return last == std::string::npos ? mText : mText.substr(last + 1);
}

NativePath NativePath::Beside(const std::string& name) const
{
    return Exactly(Folder() + "/" + name);
}

SystemFailure NativePath::FailureOf(int error) const
{
    struct stat status
    {
    };
    const bool isFolderAbsent = error == ENOENT && ::stat(Folder().c_str(), &status) != 0;
    return isFolderAbsent ? FolderFailure(error) : SystemFailure(error);
}

NativePath NativePath::Exactly(std::string path)
{
    return { AsItIs(), std::move(path) };
}

SystemFailure NativePath::FolderFailure(int error)
{
    return error == ENOENT ? SystemFailure(error, Error::PathNotFound) : SystemFailure(error);
}

}
