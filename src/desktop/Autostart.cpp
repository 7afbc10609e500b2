#include "desktop/Autostart.h"

#include "host/files/PathOperations.h"
#include "host/files/ReplacementFile.h"
#include "session/ProductFacts.h"

#include <string_view>

namespace tempodial {

namespace {

/// A path as such a file has it: what has a meaning in it is marked.
std::string QuotedProgram(const std::string& path)
{
    std::string quoted = "\"";
    for (const auto character : path) {
        if (std::string_view("\"`$\\").find(character) != std::string_view::npos) {
            // The file's own marks are read first, and then those of a quoted word.
            quoted += character == '\\' ? "\\\\\\" : "\\\\";
        } else if (character == '%') {
            quoted += '%';
        }
        quoted += character;
    }
    return quoted + "\"";
}

}

bool Autostart::IsOn() const
{
    return StatusAt(NativePath::Exactly(mPath), Links::Followed).has_value();
}

void Autostart::Set(bool isOn) const
{
    const auto path = NativePath::Exactly(mPath);
    if (isOn == IsOn()) {
        return;
    }
    if (!isOn) {
        Remove(path);
        return;
    }
    MakeFoldersAbove(path);
    ReplacementFile file(path);
    file.Write("[Desktop Entry]\nType=Application\nName=" + std::string(ProductName)
        + "\nExec=" + QuotedProgram(mProgram) + "\nIcon=io.github.tempodial.Tempodial\nTerminal=false\n");
    file.Commit();
}

}
