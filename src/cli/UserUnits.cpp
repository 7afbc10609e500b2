#include "cli/UserUnits.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "cli/CommandError.h"
#include "cli/RunningTracker.h"
#include "host/files/DesktopEntryWord.h"
#include "host/files/FileDescriptor.h"
#include "host/files/PathOperations.h"
#include "host/files/ProgramFolder.h"
#include "host/files/ReplacementFile.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace tempodial {

namespace {

constexpr auto ServiceName = "tempodial-track.service";
constexpr auto SyncName = "tempodial-sync.service";
constexpr auto TimerName = "tempodial-sync.timer";
/// Where the texts lie that the units for all users, which come with the program, are made of as well.
constexpr auto SourcesFolder = "share/tempodial/systemd/";

std::string ConfigFolder()
{
    const auto* config = std::getenv("XDG_CONFIG_HOME");
    if (config != nullptr && *config == '/') {
        return config;
    }
    const auto* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') {
        throw CommandError("the environment names no home: set HOME, or XDG_CONFIG_HOME");
    }
    return std::string(home) + "/.config";
}

/// The path of a program as units of systemd have it. There are no variables in it.
std::string UnitProgram(const std::string& path)
{
    std::string quoted = "\"";
    for (const char character : path) {
        if (character == '\n') {
            quoted += "\\n";
            continue;
        }
        if (character == '"' || character == '\\') {
            quoted += '\\';
        }
        quoted += character;
        if (character == '%') {
            quoted += character;
        }
    }
    return quoted + '"';
}

/// A word behind it.
std::string UnitWord(const std::string& word)
{
    return Replace(UnitProgram(word), "$", "$$");
}

/// Runs systemctl for the user, in silence; true when it could do all.
bool TellSession(std::vector<std::string> words)
{
    words.insert(words.begin(), { "systemctl", "--user", "--quiet" });
    std::vector<char*> arguments;
    for (auto& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    constexpr int ReadAndWrite = 2;
    for (const auto stream : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO }) {
        ::posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", ReadAndWrite, 0);
    }
    pid_t child = 0;
    const auto error = ::posix_spawnp(&child, arguments.front(), &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    while (error == 0 && ::waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    return error == 0 && status == 0;
}

}

UserUnits::UserUnits(std::string profile)
    : mProfile(std::move(profile))
{
}

std::vector<std::string> UserUnits::Install() const
{
    std::vector<std::string> paths;
    for (const auto& unit : Files()) {
        const auto path = NativePath::Exactly(unit.path);
        const auto text = Text(unit.source);
        try {
            MakeFoldersAbove(path);
            ReplacementFile file(path);
            file.Write(text);
            file.TakeUsualMode();
            file.Commit();
        } catch (const Failure& failure) {
            throw CommandError(
                unit.path + " can't be written: " + failure.Description() + ": see to the permissions of its folder");
        }
        paths.push_back(unit.path);
    }
    return paths;
}

std::vector<std::string> UserUnits::Uninstall() const
{
    std::vector<std::string> paths;
    for (const auto& unit : Files()) {
        const auto path = NativePath::Exactly(unit.path);
        if (!StatusAt(path, Links::Taken)) {
            continue;
        }
        try {
            Remove(path);
        } catch (const Failure& failure) {
            throw CommandError(
                unit.path + " can't be removed: " + failure.Description() + ": see to the permissions of its folder");
        }
        paths.push_back(unit.path);
    }
    return paths;
}

bool UserUnits::Start()
{
    return Reload() && TellSession({ "enable", ServiceName, TimerName })
        && TellSession({ "restart", ServiceName, TimerName });
}

bool UserUnits::Stop()
{
    return TellSession({ "disable", "--now", ServiceName, TimerName });
}

bool UserUnits::Reload()
{
    return TellSession({ "daemon-reload" });
}

std::vector<UserUnits::UnitFile> UserUnits::Files()
{
    const auto units = ConfigFolder() + "/systemd/user/";
    const std::string entry = "tempodial-track.desktop";
    return {
        { units + ServiceName, ServiceName },
        { units + SyncName, SyncName },
        { units + TimerName, TimerName },
        { ConfigFolder() + "/autostart/" + entry, entry },
    };
}

std::string UserUnits::Text(const std::string& source) const
{
    const auto path = InProgramFolder(SourcesFolder) + source;
    try {
        const auto text = FileDescriptor(NativePath::Exactly(path), Opening::Reading).ReadAll();
        const auto commandOf = [this, isEntry = source.ends_with(".desktop")](const std::string& program) {
            return isEntry ? DesktopEntryWord(program) + " --profile " + DesktopEntryWord(mProfile)
                           : UnitProgram(program) + " --profile " + UnitWord(mProfile);
        };
        return Replace(Replace(text, "@RECORDER@", commandOf(RunningTracker::ProgramPath())), "@PROGRAM@",
            commandOf(InProgramFolder("bin/tempodial")));
    } catch (const Failure& failure) {
        throw CommandError(path + " can't be read: " + failure.Description()
            + ": install the program as a whole (cmake --install), or run it where it was built");
    }
}

}
