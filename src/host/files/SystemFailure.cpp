#include "host/files/SystemFailure.h"

#include <cerrno>
#include <system_error>

namespace tempodial {

namespace {

Error ErrorOf(int error)
{
    switch (error) {
    case ENOENT:
        return Error::FileNotFound;
    case ENOTDIR:
        return Error::PathNotFound;
    case EEXIST:
        return Error::FileExists;
    case ENAMETOOLONG:
    case EINVAL:
    case EBADF:
        return Error::BadFileName;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return Error::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ELOOP: // a link where none is followed
    case ENXIO: // a pipe or a device with nobody behind it
    case ENODEV:
    case ETXTBSY:
    case EBUSY:
    case EWOULDBLOCK:
        return Error::PermissionDenied;
    case EXDEV:
    case EMFILE:
    case ENFILE:
        return Error::PathFileAccess;
    case ENOMEM:
        return Error::OutOfMemory;
    default:
        return Error::DeviceError;
    }
}

}

SystemFailure::SystemFailure(int error)
    : SystemFailure(error, ErrorOf(error))
{
}

SystemFailure::SystemFailure(int error, Error meaning)
    : Failure(meaning)
    , mError(error)
{
}

bool SystemFailure::IsAbsence() const noexcept
{
    return mError == ENOENT;
}

std::string SystemFailure::Reason() const
{
    return std::system_category().message(mError);
}

}
