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

/// Adds what a session tells, or why nothing is told, to what a desktop does.
void AddSession(DesktopSight& sight, SessionSource* session, const std::string& sessionTrouble)
{
    if (!sight.idle && session != nullptr && session->Idle()) {
        sight.idle = true;
        sight.why.clear();
    }
    if (!sight.lock && session != nullptr && session->IsLocked()) {
        sight.lock = true;
    }
    if (!sight.lock) {
        sight.why += (sight.why.empty() ? "" : "; ") + sessionTrouble;
    }
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
    std::string trouble = "the login manager knows no session of yours that could be locked: begin one by its login";
    const auto session = OpenSession(settings, trouble);
    std::vector<DesktopTrial> trials;
    bool isChosen = false;
    for (const auto name : DesktopNames) {
        DesktopTrial trial { std::string(name), {}, false };
        if (OpenDesktop(trial.name, settings, trial.sight)) {
            AddSession(trial.sight, session.get(), trouble);
            trial.isChosen = !std::exchange(isChosen, true);
        }
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
