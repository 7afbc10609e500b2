#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/DurationArgument.h"
#include "cli/RunningTracker.h"
#include "terminal/UsageError.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace tempodial {

namespace {

constexpr std::int64_t MillisecondsOfDuration = 1000;

/// A value of an answer that may be absent.
JsonValue TextOrNull(const ControlMessage& answer, const std::string& name)
{
    return answer.Has(name) ? JsonValue(answer.Get(name)) : JsonValue();
}

/// A moment as people read it.
std::string ShownMoment(std::string moment)
{
    if (const auto letter = moment.find('T'); letter != std::string::npos) {
        moment[letter] = ' ';
    }
    return moment;
}

class TrackStatusCommand final : public Command
{
public:
    TrackStatusCommand()
        : Command({ "track status", "Show whether the recorder runs, and what it sees",
            "Shows the desktop, the program in front, since when you are there or away, and\n"
            "what was written today. No title is shown.\n"
            "\n"
            "  tempodial track status" })
    {
    }

    void Declare(ArgumentList& /*arguments*/) override { }

    Reply Run(const Options& options) override
    {
        const RunningTracker tracker(options);
        const auto answer = tracker.AskIfRunning(TrackRequest("status"));
        Reply reply;
        if (!answer && tracker.IsRunning()) {
            reply.document = { { "running", true } };
            for (const auto* unknown :
                { "backend", "idle", "since", "paused", "pausedUntil", "inFront", "slots", "lastWritten" }) {
                reply.document.Set(unknown, JsonValue());
            }
            reply.text
                = "The recorder runs, but can't be asked from here: " + std::string(RunningTracker::HowToAsk) + ".\n";
            return reply;
        }
        if (!answer) {
            reply.document = { { "running", false } };
            reply.text = "No recorder is running; \"tempodial track install\" lets your session start one.\n";
            return reply;
        }
        const bool isIdle = answer->Get("idle") == "1";
        const bool isPaused = answer->Get("paused") == "1";
        auto inFront = JsonValue();
        if (answer->Has("program")) {
            inFront = { { "program", answer->Get("program") }, { "kind", std::stoi(answer->Get("kind")) } };
        }
        reply.document = { { "running", true }, { "backend", answer->Get("backend") }, { "idle", isIdle },
            { "since", answer->Get("since") }, { "paused", isPaused },
            { "pausedUntil", TextOrNull(*answer, "pausedUntil") }, { "inFront", std::move(inFront) },
            { "slots", std::stoi(answer->Get("slots")) }, { "lastWritten", TextOrNull(*answer, "lastWritten") } };
        const auto until = answer->Has("pausedUntil") ? " until " + ShownMoment(answer->Get("pausedUntil")) : "";
        reply.text = "Recording (" + answer->Get("backend") + "): "
            + (isPaused                      ? "paused" + until
                    : isIdle                 ? "nobody there"
                    : answer->Has("program") ? answer->Get("program")
                                             : "nothing in front")
            + " since " + ShownMoment(answer->Get("since")) + "\nToday " + answer->Get("slots") + " slots were written"
            + (answer->Has("lastWritten") ? ", the last at " + ShownMoment(answer->Get("lastWritten")) : "") + ".\n";
        return reply;
    }
};

class TrackPauseCommand final : public Command
{
public:
    TrackPauseCommand()
        : Command({ "track pause", "Let the recorder note nothing for a while",
            "You count as away at once, until \"track resume\" or for the time given, even if\n"
            "the recorder is started again in between.\n"
            "\n"
            "  tempodial track pause\n"
            "  tempodial track pause --for 30m" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("--for TIME", mFor, "How long, such as 30m or 2h; default until it is resumed");
    }

    Reply Run(const Options& options) override
    {
        auto request = TrackRequest("pause");
        if (mFor) {
            request.Set("for", std::to_string(ToSeconds("--for", *mFor) * MillisecondsOfDuration));
        }
        const auto answer = RunningTracker(options).Ask(request);
        Reply reply;
        reply.document = { { "paused", true }, { "until", TextOrNull(answer, "pausedUntil") } };
        reply.text = answer.Has("pausedUntil")
            ? "Nothing is recorded until " + ShownMoment(answer.Get("pausedUntil")) + ".\n"
            : "Nothing is recorded until \"tempodial track resume\".\n";
        return reply;
    }

private:
    std::optional<std::string> mFor;
};

class TrackResumeCommand final : public Command
{
public:
    TrackResumeCommand()
        : Command({ "track resume", "Let the recorder go on after a pause",
            "\n"
            "  tempodial track resume" })
    {
    }

    void Declare(ArgumentList& /*arguments*/) override { }

    Reply Run(const Options& options) override
    {
        const auto answer = RunningTracker(options).Ask(TrackRequest("resume"));
        if (answer.Get("paused") == "1") {
            throw CommandError("the recorder still waits, since track.toml or programs.toml can't be read: correct "
                               "what it has said of them");
        }
        Reply reply;
        reply.document = { { "paused", false }, { "until", JsonValue() } };
        reply.text = "Recording again.\n";
        return reply;
    }
};

class TrackProjectCommand final : public Command
{
public:
    TrackProjectCommand()
        : Command({ "track project", "Give what is recorded from now on a project",
            "Each line from the present slot on has it, whatever the rules say, until --none\n"
            "ends that. Without a name the present project is shown.\n"
            "\n"
            "  tempodial track project Riverside\n"
            "  tempodial track project --none" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Optional("NAME", mName, "The project");
        arguments.Flag("--none", mIsNone, "Take it back");
    }

    Reply Run(const Options& options) override
    {
        if (mName && mIsNone) {
            throw UsageError("a project and --none were given: give one of them");
        }
        auto request = TrackRequest("project");
        if (mName || mIsNone) {
            request.Set("name", mName.value_or(""));
        }
        const auto name = RunningTracker(options).Ask(request).Get("name");
        if (mName && name.empty()) {
            throw UsageError("NAME names no project: give its name, or --none");
        }
        Reply reply;
        reply.document = { { "project", name.empty() ? JsonValue() : JsonValue(name) } };
        reply.text = name.empty() ? "What is recorded gets its project by the rules.\n"
                                  : "What is recorded belongs to " + name + ".\n";
        return reply;
    }

private:
    std::optional<std::string> mName;
    bool mIsNone = false;
};

}

std::unique_ptr<Command> MakeTrackStatusCommand()
{
    return std::make_unique<TrackStatusCommand>();
}

std::unique_ptr<Command> MakeTrackPauseCommand()
{
    return std::make_unique<TrackPauseCommand>();
}

std::unique_ptr<Command> MakeTrackResumeCommand()
{
    return std::make_unique<TrackResumeCommand>();
}

std::unique_ptr<Command> MakeTrackProjectCommand()
{
    return std::make_unique<TrackProjectCommand>();
}

}
