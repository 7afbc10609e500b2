#include "portable/JoinedPath.h"

#include "base/Concatenated.h"

#include <algorithm>

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
    const auto last = std::find_if(path.rbegin(), path.rend(), IsSeparator);
    const char between = last == path.rend() ? separator : *last;
    return Concatenated({ path, { &between, 1 }, name });
}

}
