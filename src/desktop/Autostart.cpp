#include "desktop/Autostart.h"

#include "base/Fnv1a.h"
#include "host/files/DesktopEntryWord.h"
#include "host/files/PathOperations.h"
#include "host/files/ReplacementFile.h"
#include "session/ProductFacts.h"

#include <array>
#include <cstdio>
#include <utility>

namespace tempodial {

namespace {

/// The name of a profile's file: that of the usual one, or one that no other profile has.
std::string FileOf(const std::optional<std::string>& profile)
{
    std::string name = Autostart::FileName;
    if (profile) {
        std::array<char, 18> hash {};
        std::snprintf(hash.data(), hash.size(), "-%016llx", static_cast<unsigned long long>(Fnv1a(*profile).Hash()));
        name.insert(name.rfind('.'), hash.data());
    }
    return name;
}

}

Autostart::Autostart(const std::string& configFolder, std::string program, std::optional<std::string> profile)
    : mPath(configFolder + "/" + FileOf(profile))
    , mProgram(std::move(program))
    , mProfile(std::move(profile))
{
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
    file.Write("[Desktop Entry]\nType=Application\nName=" + std::string(ProductName) + "\nExec="
        + DesktopEntryWord(mProgram) + (mProfile ? " --profile " + DesktopEntryWord(*mProfile) : std::string())
        + "\nIcon=io.github.tempodial.Tempodial\nTerminal=false\n");
    file.Commit();
}

}
