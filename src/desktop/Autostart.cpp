#include "desktop/Autostart.h"

#include "host/files/DesktopEntryWord.h"
#include "host/files/PathOperations.h"
#include "host/files/ReplacementFile.h"
#include "session/ProductFacts.h"

namespace tempodial {

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
        + "\nExec=" + DesktopEntryWord(mProgram) + "\nIcon=io.github.tempodial.Tempodial\nTerminal=false\n");
    file.Commit();
}

}
