#pragma once

#include "cli/Options.h"
#include "track/ControlMessage.h"

#include <optional>
#include <string>

namespace tempodial {

/// The recorder of a profile as a program of its own that runs, or is to run.
class RunningTracker
{
public:
    /// Fails with `ProfileError` when the profile's path can't be used.
    explicit RunningTracker(const Options& options);

    /// The profile's path.
    const std::string& Profile() const { return mProfile; }
    /// Asks it; nothing when none runs. Fails with `CommandError` when it can't do what it is asked for.
    std::optional<ControlMessage> AskIfRunning(const ControlMessage& request) const;
    /// True when one runs, also one that can't be asked from here.
    bool IsRunning() const;
    /// Asks it, and fails with `CommandError` also when none runs.
    ControlMessage Ask(const ControlMessage& request) const;

    /// What to do about one that can't be asked.
    static constexpr auto HowToAsk = "ask in the session that started it, or set XDG_RUNTIME_DIR to what it is there";

    /// Where the program lies.
    static std::string ProgramPath();

private:
    std::string mProfile;
};

/// A request of that name.
ControlMessage TrackRequest(const std::string& what);

}
