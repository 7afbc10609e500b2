#include "host/files/DesktopEntryWord.h"

namespace tempodial {

std::string DesktopEntryWord(std::string_view word)
{
    std::string quoted = "\"";
    for (const auto character : word) {
        if (std::string_view("\"`$\\").find(character) != std::string_view::npos) {
            // The file's own marks are read first, and then those of a quoted word.
            quoted += character == '\\' ? "\\\\\\" : "\\\\";
        } else if (character == '%') {
            quoted += '%';
        } else if (character == '\n') {
            quoted += "\\n";
            continue;
        }
        quoted += character;
    }
    return quoted + '"';
}

}
