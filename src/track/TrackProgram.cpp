#include "track/TrackProgram.h"

#include "base/Failure.h"
#include "base/SettingsFile.h"
#include "track/ProbeText.h"
#include "track/TrackError.h"
#include "track/TrackRun.h"

#include <cctype>
#include <cstdio>
#include <exception>
#include <iostream>
#include <stdexcept>
#include <unistd.h>

namespace tempodial {

namespace {

/// As those of the program that people run.
enum TrackStatus { TrackDone = 0, TrackNotDone = 1, TrackUsage = 2, TrackRuns = 3 };

struct TrackArguments
{
    TrackOptions options;
    bool isProbe = false;
    bool isOnce = false;
    bool isJson = false;
};

void TellPeople(const std::string& message)
{
    std::cerr << "tempodial: " << message << std::endl;
}

/// A moment `YYYY-MM-DDTHH:MM:SS`, as it was checked before.
Date MomentOf(const std::string& text)
{
    Date::Parts parts {};
    if (std::sscanf(text.c_str(), "%d-%d-%dT%d:%d:%d", &parts.year, &parts.month, &parts.day, &parts.hour,
            &parts.minute, &parts.second)
        != 6) {
        throw std::invalid_argument(text);
    }
    return Date::FromParts(parts);
}

TrackArguments ArgumentsOf(const std::vector<std::string>& words)
{
    TrackArguments arguments;
    for (auto word = words.begin(); word != words.end(); ++word) {
        const auto value = [&word, &words] {
            if (++word == words.end()) {
                throw std::invalid_argument("a value is missing");
            }
            return *word;
        };
        if (*word == "--profile") {
            arguments.options.profile = value();
        } else if (*word == "--now") {
            arguments.options.now = MomentOf(value());
        } else if (*word == "--speed") {
            arguments.options.speed = std::stoi(value());
        } else if (*word == "--probe") {
            arguments.isProbe = true;
        } else if (*word == "--once") {
            arguments.isOnce = true;
        } else if (*word == "--json") {
            arguments.isJson = true;
        } else {
            throw std::invalid_argument(*word);
        }
    }
    if (arguments.options.profile.empty() || arguments.options.speed < 1) {
        throw std::invalid_argument("--profile");
    }
    return arguments;
}

int Probe(const TrackArguments& arguments)
{
    const auto trials = TryDesktops(WatchSettingsAt(TrackClock(std::nullopt, arguments.options.speed)));
    std::cout << (arguments.isJson ? ProbeJson(trials) : ProbeText(trials));
    for (const auto& trial : trials) {
        if (trial.isChosen) {
            return TrackDone;
        }
    }
    TellPeople("no desktop can be watched: see what \"tempodial track probe\" says of each");
    return TrackNotDone;
}

int Once(const TrackArguments& arguments)
{
    const TrackClock clock;
    const auto settings = WatchSettingsAt(clock);
    const auto views = TrackSettings(arguments.options.profile).Read();
    auto desktop = ChooseDesktop(settings);
    if (!desktop.source) {
        TellPeople("no desktop can be watched: \"tempodial track probe\" says why");
        return TrackNotDone;
    }
    std::string why;
    const auto session = OpenSession(settings, why);
    ProgramNames names;
    auto seen = Observed(desktop.source.get(), session.get(), names);
    seen.idle = IdleTime(desktop.source.get(), session.get(), clock);
    const auto made = seen.window ? views.Make(*seen.window) : Seen {};
    std::cout << (arguments.isJson ? OnceJson(desktop.name, made, seen) : OnceText(made, seen));
    return TrackDone;
}

int Record(const TrackArguments& arguments)
{
    TrackRun run(arguments.options, TellPeople);
    if (::isatty(STDERR_FILENO) != 0) {
        std::cerr << "Recording (" << run.DesktopName() << "); Ctrl-C ends it.\n";
    }
    return run.Run() ? TrackDone : TrackNotDone;
}

}

int RunTrackProgram(const std::vector<std::string>& words)
{
    TrackArguments arguments;
    try {
        arguments = ArgumentsOf(words);
    } catch (const std::exception&) {
        TellPeople("tempodial-track is no program to be run by hand: run \"tempodial track\"");
        return TrackUsage;
    }
    try {
        return arguments.isProbe ? Probe(arguments) : arguments.isOnce ? Once(arguments) : Record(arguments);
    } catch (const RecorderRuns& error) {
        TellPeople(error.what());
        return TrackRuns;
    } catch (const Failure& failure) {
        TellPeople(failure.Description() + ": see to the profile's folder and its disk");
        return TrackNotDone;
    } catch (const std::exception& error) {
        TellPeople(error.what());
        return TrackNotDone;
    }
}

}
