#pragma once

#include "track/DesktopSource.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace tempodial {

/// What programs are called by the system: their processes, and the entries of the menu.
class ProgramNames
{
public:
    ProgramNames();

    /// The id of a window's program: that which the desktop gives, else the name of its process.
    static std::string IdOf(const FrontWindow& window);
    /// The name in the menu's entry of an id, empty when there is none.
    std::string NameOf(const std::string& id);

private:
    std::string Entry(const std::string& id) const;

    /// Folders of entries.
    std::vector<std::string> mFolders;
    std::unordered_map<std::string, std::string> mKnown;
};

}
