#include "host/files/NativePath.h"

#include "host/files/SystemFailure.h"

#include <algorithm>
#include <cerrno>
#include <sys/stat.h>
#include <utility>

namespace tempodial {

NativePath::NativePath(std::string path)
    : mText(std::move(path))
{
    if (mText.find('\0') != std::string::npos) {
        throw Failure(Error::BadFileName);
    }
    if (mText.find('\\') != std::string::npos) {
        struct stat status
        {
        };
        if (::lstat(mText.c_str(), &status) != 0) {
            std::replace(mText.begin(), mText.end(), '\\', '/');
        }
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

Failure NativePath::FailureOf(int error) const
{
    struct stat status
    {
    };
    if (error == ENOENT && ::stat(Folder().c_str(), &status) != 0) {
        return Failure(Error::PathNotFound);
    }
    return SystemFailure(error);
}

}
