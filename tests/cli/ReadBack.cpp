#include "cli/ReadBack.h"

#include <cstdio>
#include <memory>

namespace tempodial {

std::string ReadBack(const std::string& script, const std::string& path)
{
    // The system's own Python is the one that has the Debian packages.
    const auto command = "/usr/bin/python3 -B " TEMPODIAL_SOURCE_DIR "/tests/" + script + " " + path + " 2>&1";
    const std::unique_ptr<FILE, decltype(&::pclose)> output(::popen(command.c_str(), "r"), &::pclose);
    std::string text;
    for (int character = std::fgetc(output.get()); character != EOF; character = std::fgetc(output.get())) {
        text += static_cast<char>(character);
    }
    return text;
}

}
