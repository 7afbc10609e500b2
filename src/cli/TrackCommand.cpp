#include "base/IsoDate.h"
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/RunningTracker.h"
#include "terminal/Arguments.h"

#include <csignal>
#include <cstdint>
#include <optional>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

namespace tempodial {

namespace {

constexpr std::int32_t HighestSpeed = 600;

/// Becomes the recorder's program; fails with `CommandError` when it can't be run.
[[noreturn]] void BecomeTracker(const Options& options, std::vector<std::string> words)
{
    const auto program = RunningTracker::ProgramPath();
    words.insert(words.begin(), { program, "--profile", RunningTracker(options).Profile() });
    if (options.json) {
        words.emplace_back("--json");
    }
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (auto& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    // What is ignored here would stay so in the program.
    (void)std::signal(SIGPIPE, SIG_DFL);
    ::execv(program.c_str(), arguments.data());
    throw CommandError(program + " can't be run: install the program again");
}

class TrackCommand final : public Command
{
public:
    TrackCommand()
        : Command({ "track", "Record what you work in, until you stop it",
            "Notes which window is in front and whether anyone is there, and writes that in\n"
            "slots of five minutes to the tracker files, which \"sync\" imports. It runs in\n"
            "the foreground until Ctrl-C; \"track install\" lets your session start it.\n"
            "It never looks at keys, pictures of the screen or the clipboard, and nothing\n"
            "leaves the machine. Rules in track.toml in the profile say what isn't noted.\n"
            "\n"
            "  tempodial track probe        can your desktop be watched?\n"
            "  tempodial track --once       what is in front now\n"
            "  tempodial track install      record from now on\n"
            "  tempodial track pause --for 30m" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Flag("--once", mIsOnce, "Print what is in front now, and end");
        arguments.Optional("--speed N", mSpeed, "For tests: let all clocks run N times as fast, 1 to 600");
    }

    Reply Run(const Options& options) override
    {
        std::vector<std::string> words;
        if (mIsOnce) {
            words.emplace_back("--once");
        }
        if (options.now) {
            words.insert(words.end(), { "--now", IsoMoment(*options.now) });
        }
        if (mSpeed) {
            words.insert(words.end(), { "--speed", std::to_string(ToCount("--speed", *mSpeed, 1, HighestSpeed)) });
        }
        BecomeTracker(options, std::move(words));
    }

private:
    bool mIsOnce = false;
    std::optional<std::string> mSpeed;
};

class TrackProbeCommand final : public Command
{
public:
    TrackProbeCommand()
        : Command({ "track probe", "Show which desktops the recorder can watch here",
            "Tries each of them and says what it sees there, or why it can't and what to do\n"
            "about that. The chosen one has a star. No recorder need be running.\n"
            "\n"
            "  tempodial track probe" })
    {
    }

    void Declare(ArgumentList& /*arguments*/) override { }

    Reply Run(const Options& options) override { BecomeTracker(options, { "--probe" }); }
};

}

std::unique_ptr<Command> MakeTrackCommand()
{
    return std::make_unique<TrackCommand>();
}

std::unique_ptr<Command> MakeTrackProbeCommand()
{
    return std::make_unique<TrackProbeCommand>();
}

}
