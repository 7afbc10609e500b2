#include "driver/remote/WindowsPath.h"

#include <algorithm>
#include <string_view>

namespace tempodial {

namespace {

/// The drive by which Wine shows all of this system's files.
constexpr std::string_view Drive = "Z:";

}

std::string ToWindowsPath(const std::string& path)
{
    auto other = std::string(Drive) + path;
    std::replace(other.begin(), other.end(), '/', '\\');
    return other;
}

std::string FromWindowsPath(const std::string& path)
{
    if (!path.starts_with(Drive)) {
        return path;
    }
    auto other = path.substr(Drive.size());
    std::replace(other.begin(), other.end(), '\\', '/');
    return other;
}

}
