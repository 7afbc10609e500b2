#include "portable/JoinedPath.h"

#include "base/Concatenated.h"

namespace tempodial {

namespace {

bool IsSeparator(char character)
{
    return character == '/' || character == '\\';
}

}

std::string JoinedPath(const std::string& path, const std::string& name, char separator)
{
    if (path.empty() || name.empty()) {
        return path + name;
    }
    const bool pathEnds = IsSeparator(path.back());
    const bool nameBegins = IsSeparator(name.front());
    if (pathEnds || nameBegins) {
        return path + (pathEnds && nameBegins ? name.substr(1) : name);
    }
    const auto last = path.find_last_of("/\\");
    const char between = last == std::string::npos ? separator : path[last];
    return Concatenated({ path, { &between, 1 }, name });
}

}
