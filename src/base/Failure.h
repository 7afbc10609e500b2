#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace tempodial {

/// The error numbers that have a text of their own.
enum class Error : std::int32_t {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    BadFileMode = 54,
    DeviceError = 57,
    FileExists = 58,
    DiskFull = 61,
    InputPastEnd = 62,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    ObjectNotSet = 91,
    InvalidNull = 94,
    SecurityRefusal = 287,
    InvalidPropertyValue = 380,
    ObjectRequired = 424,
    CannotCreateObject = 429,
    NotSupported = 438,
    Automation = 440,
    KeyExists = 457,
    ServerUnavailable = 462,
    InvalidPicture = 481,
    ObjectNotFound = -2147221233,
};

/// A failed statement: an error number and the description that goes to the trace.
class Failure : public std::exception
{
public:
    /// The failure of that number with the number's own text.
    explicit Failure(Error error);
    /// The failure of that number with another description than the number's own.
    Failure(Error error, std::string description);
    /// The failure of any number; one without a text of its own reads "Application-defined or object-defined error".
    explicit Failure(std::int32_t number);
    /// The failure of any number with a description.
    Failure(std::int32_t number, std::string description);

    /// The error number.
    std::int32_t Number() const noexcept { return mNumber; }
    /// The description, never empty unless it was given so.
    const std::string& Description() const noexcept { return mDescription; }
    /// True when this is the failure of that number.
    bool Is(Error error) const noexcept { return mNumber == static_cast<std::int32_t>(error); }
    const char* what() const noexcept override { return mDescription.c_str(); }

    /// The exception now being handled as a failure: other exceptions are mapped to the number that fits, else to 440.
    static Failure FromCurrentException();

private:
    std::int32_t mNumber;
    std::string mDescription;
};

/// The text of an error number.
std::string_view ErrorText(std::int32_t number);

}
