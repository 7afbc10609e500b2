#include "base/Failure.h"

#include <filesystem>
#include <new>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace tempodial {

namespace {

constexpr std::string_view GeneralText = "Application-defined or object-defined error";

Error FileError(const std::error_code& code, Error otherwise)
{
    constexpr std::pair<std::errc, Error> Known[] = {
        { std::errc::no_such_file_or_directory, Error::FileNotFound },
        { std::errc::not_a_directory, Error::PathNotFound },
        { std::errc::file_exists, Error::FileExists },
        { std::errc::permission_denied, Error::PermissionDenied },
        { std::errc::operation_not_permitted, Error::PermissionDenied },
        { std::errc::read_only_file_system, Error::PermissionDenied },
        { std::errc::is_a_directory, Error::PermissionDenied },
        { std::errc::device_or_resource_busy, Error::PermissionDenied },
        { std::errc::text_file_busy, Error::PermissionDenied },
        { std::errc::directory_not_empty, Error::PathFileAccess },
        { std::errc::no_space_on_device, Error::DiskFull },
        { std::errc::io_error, Error::DeviceError },
        { std::errc::filename_too_long, Error::BadFileName },
        { std::errc::invalid_argument, Error::BadFileName },
        { std::errc::not_enough_memory, Error::OutOfMemory },
    };
    for (const auto& [condition, error] : Known) {
        if (code == condition) {
            return error;
        }
    }
    return otherwise;
}

}

Failure::Failure(Error error)
    : Failure(static_cast<std::int32_t>(error))
{
}

Failure::Failure(Error error, std::string description)
    : Failure(static_cast<std::int32_t>(error), std::move(description))
{
}

Failure::Failure(std::int32_t number)
    : Failure(number, std::string(ErrorText(number)))
{
}

Failure::Failure(std::int32_t number, std::string description)
    : mNumber(number)
    , mDescription(std::move(description))
{
}

Failure Failure::FromCurrentException()
{
    try {
        throw;
    } catch (const Failure& failure) {
        return failure;
    } catch (const std::bad_alloc&) {
        return Failure(Error::OutOfMemory);
    } catch (const std::out_of_range&) {
        return Failure(Error::SubscriptOutOfRange);
    } catch (const std::filesystem::filesystem_error& error) {
        return Failure(FileError(error.code(), Error::PathFileAccess));
    } catch (const std::system_error& error) {
        return Failure(FileError(error.code(), Error::Automation));
    } catch (...) {
        return Failure(Error::Automation);
    }
}

std::string_view ErrorText(std::int32_t number)
{
    switch (static_cast<Error>(number)) {
    case Error::InvalidCall:
        return "Invalid procedure call or argument";
    case Error::Overflow:
        return "Overflow";
    case Error::OutOfMemory:
        return "Out of memory";
    case Error::SubscriptOutOfRange:
        return "Subscript out of range";
    case Error::DivisionByZero:
        return "Division by zero";
    case Error::TypeMismatch:
        return "Type mismatch";
    case Error::BadFileName:
        return "Bad file name or number";
    case Error::FileNotFound:
        return "File not found";
    case Error::BadFileMode:
        return "Bad file mode";
    case Error::DeviceError:
        return "Device I/O error";
    case Error::FileExists:
        return "File already exists";
    case Error::DiskFull:
        return "Disk full";
    case Error::InputPastEnd:
        return "Input past end of file";
    case Error::PermissionDenied:
        return "Permission denied";
    case Error::PathFileAccess:
        return "Path/File access error";
    case Error::PathNotFound:
        return "Path not found";
    case Error::ObjectNotSet:
        return "Object variable or With block variable not set";
    case Error::InvalidNull:
        return "Invalid use of Null";
    case Error::InvalidPropertyValue:
        return "Invalid property value";
    case Error::ObjectRequired:
        return "Object required";
    case Error::CannotCreateObject:
        return "ActiveX component can't create object";
    case Error::NotSupported:
        return "Object doesn't support this property or method";
    case Error::Automation:
        return "Automation error";
    case Error::KeyExists:
        return "This key is already associated with an element of this collection";
    case Error::ServerUnavailable:
        return "The remote server machine does not exist or is unavailable";
    case Error::InvalidPicture:
        return "Invalid picture";
    case Error::ObjectNotFound:
        return "The operation failed. An object could not be found.";
    case Error::SecurityRefusal:
        return GeneralText;
    }
    return GeneralText;
}

}
