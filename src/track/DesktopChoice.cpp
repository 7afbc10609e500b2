#include "track/DesktopChoice.h"

#include "base/Failure.h"
#include "host/files/ProgramModule.h"
#include "track/DesktopNames.h"

#include <dlfcn.h>
#include <utility>

namespace tempodial {

namespace {

/// Why a module can't be loaded, and what to do.
std::string LoadingProblem(const std::string& module)
{
    const auto* reason = ::dlerror();
    return (reason == nullptr ? module + " can't be loaded" : std::string(reason))
        + ": install the library that is missing, or the program again";
}

std::unique_ptr<DesktopSource> OpenDesktop(const std::string& name, const WatchSettings& settings, DesktopSight& sight)
{
    const auto path = ProgramModule::PathOf(DesktopModulePrefix + name);
    DesktopOpener open = nullptr;
    try {
        open = ProgramModule(path).Get<DesktopOpener>(DesktopOpenerName);
    } catch (const Failure&) {
        sight.why = LoadingProblem(path);
        return nullptr;
    }
    auto source = open(settings, sight);
    if (source) {
        sight = source->Sight();
    }
    return source;
}

}

ChosenDesktop ChooseDesktop(const WatchSettings& settings)
{
    ChosenDesktop desktop;
    for (const auto name : DesktopNames) {
        DesktopTrial trial { std::string(name), {}, false };
        desktop.source = OpenDesktop(trial.name, settings, trial.sight);
        trial.isChosen = desktop.source != nullptr;
        desktop.trials.push_back(std::move(trial));
        if (desktop.source) {
            desktop.name = name;
            break;
        }
    }
    return desktop;
}

std::vector<DesktopTrial> TryDesktops(const WatchSettings& settings)
{
    std::vector<DesktopTrial> trials;
    bool isChosen = false;
    for (const auto name : DesktopNames) {
        DesktopTrial trial { std::string(name), {}, false };
        trial.isChosen = OpenDesktop(trial.name, settings, trial.sight) != nullptr && !isChosen;
        isChosen = isChosen || trial.isChosen;
        trials.push_back(std::move(trial));
    }
    return trials;
}

std::unique_ptr<SessionSource> OpenSession(const WatchSettings& settings, std::string& why)
{
    const auto path = ProgramModule::PathOf(SessionModule);
    SessionOpener open = nullptr;
    try {
        open = ProgramModule(path).Get<SessionOpener>(SessionOpenerName);
    } catch (const Failure&) {
        why = LoadingProblem(path);
        return nullptr;
    }
    return open(settings, why);
}

}
