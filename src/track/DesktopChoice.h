#pragma once

#include "track/DesktopSource.h"
#include "track/SessionSource.h"

#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// A desktop that was tried.
struct DesktopTrial
{
    std::string name;
    DesktopSight sight;
    bool isChosen = false;
};

/// A desktop that is watched.
struct ChosenDesktop
{
    /// "none" when no desktop is one that is known.
    std::string name = "none";
    std::unique_ptr<DesktopSource> source;
    /// Those that were tried before it, and itself, in their order.
    std::vector<DesktopTrial> trials;
};

/// Tries the desktops that are known, each by its module, and takes the first that connects.
ChosenDesktop ChooseDesktop(const WatchSettings& settings);
/// Tries all of them, each for itself; the first that connects is the chosen one. What the session tells in a desktop's
/// place is seen too.
std::vector<DesktopTrial> TryDesktops(const WatchSettings& settings);
/// Connects with the session; nothing when there is none, and then `why` says the reason.
std::unique_ptr<SessionSource> OpenSession(const WatchSettings& settings, std::string& why);

}
