#pragma once

#include "track/WatchedSource.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace tempodial {

/// The window in front, in the desktop's own words.
struct FrontWindow
{
    /// What the desktop knows the program by, such as a window's class or an app id; empty when it tells none.
    std::string program;
    /// As it stands there, in UTF-8; empty when it can't be told.
    std::string title;
    /// The process that it belongs to, 0 when that can't be told.
    std::int64_t process = 0;

    bool operator==(const FrontWindow&) const = default;
};

/// What can be seen on a desktop.
struct DesktopSight
{
    bool window = false;
    bool title = false;
    bool idle = false;
    bool lock = false;
    /// What of it can't be seen and why, and what to do about it; empty where all is well.
    std::string why;
};

/// What is in front on a desktop, and whether anyone is there. Answers are what is known after the last `Dispatch`;
/// they may ask the desktop, but not wait for long.
class DesktopSource : public WatchedSource
{
public:
    /// What it can tell.
    virtual DesktopSight Sight() const = 0;
    /// The window in front; nothing when there is none.
    virtual std::optional<FrontWindow> Window() = 0;
    /// The time since the last input; nothing when it can't be told. It is asked once a minute, and whenever something
    /// has come: so something comes when somebody is back after a time without input.
    virtual std::optional<std::chrono::milliseconds> Idle() = 0;
    /// True while the screen is locked; nothing when it can't be told.
    virtual std::optional<bool> IsLocked() = 0;
};

/// Connects with the desktop, if it is one that a module knows; nothing when it isn't, and then the reason and what to
/// do about it stand in `sight`.
using DesktopOpener = std::unique_ptr<DesktopSource> (*)(const WatchSettings& settings, DesktopSight& sight);

/// What a module's name begins with, before the name of its desktop, and the name of its one function, a
/// `DesktopOpener`.
inline constexpr auto DesktopModulePrefix = "tempodial-track-";
inline constexpr auto DesktopOpenerName = "TempodialOpenDesktop";

}
