#include "addin/win32/ErrorFailure.h"

namespace tempodial {

Failure FailureOfError(DWORD error)
{
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
        return Failure(Error::FileNotFound);
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DIRECTORY:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
        return Failure(Error::PathNotFound);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
    case ERROR_USER_MAPPED_FILE:
        return Failure(Error::PermissionDenied);
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return Failure(Error::FileExists);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return Failure(Error::DiskFull);
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_INVALID_HANDLE:
        return Failure(Error::BadFileName);
    case ERROR_NOT_SAME_DEVICE:
    case ERROR_TOO_MANY_OPEN_FILES:
        return Failure(Error::PathFileAccess);
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
        return Failure(Error::OutOfMemory);
    default:
        return Failure(Error::DeviceError);
    }
}

Failure FailureOfLastError()
{
    return FailureOfError(GetLastError());
}

}
