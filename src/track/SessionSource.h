#pragma once

#include "track/WatchedSource.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace tempodial {

/// What is told of the user's session and of the machine, whatever the desktop.
class SessionSource : public WatchedSource
{
public:
    /// True while the session is locked; nothing when it can't be told.
    virtual std::optional<bool> IsLocked() = 0;
    /// The time since the last input; nothing when it can't be told.
    virtual std::optional<std::chrono::milliseconds> Idle() = 0;
    /// True from when the machine is about to sleep until it has woken up.
    virtual bool IsGoingToSleep() = 0;
    /// Lets the machine sleep, for which it waits for a moment, since what was to be written is written.
    virtual void LetSleep() = 0;
};

/// Connects with the session; nothing when there is none, and then `why` says the reason and what to do.
using SessionOpener = std::unique_ptr<SessionSource> (*)(const WatchSettings& settings, std::string& why);

/// The module that knows sessions, and the name of its one function, a `SessionOpener`.
inline constexpr auto SessionModule = "tempodial-track-session";
inline constexpr auto SessionOpenerName = "TempodialOpenSession";

}
