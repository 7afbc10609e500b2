#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace tempodial {

/// What a run of a program left behind.
struct ProgramResult
{
    /// The exit status, or 128 and the signal's number.
    int status = 0;
    std::string out;
    std::string error;
    /// System calls made, counted only in a run that was to be killed or counted.
    std::int64_t systemCalls = 0;
};

/// What a program sees of its caller: nothing of the caller's own profile.
std::vector<std::string> UsualEnvironment();

/// Runs the built program with arguments, and with an environment of "NAME=value".
ProgramResult RunTempodial(
    const std::vector<std::string>& arguments, const std::vector<std::string>& environment = UsualEnvironment());

/// How the program is run otherwise than usual.
struct RunSettings
{
    /// Where it lies, "" for where it was built.
    std::string executable;
    /// Bytes of memory that it may have.
    rlim_t memory = RLIM_INFINITY;
};

/// Runs it so.
ProgramResult RunTempodialWith(const RunSettings& settings, const std::vector<std::string>& arguments);

/// What a test does while it observes a run.
struct RunObserver
{
    /// Called before each system call, counted from 1; when it answers false, the program is killed there.
    std::function<bool(std::int64_t call)> goesOn = [](std::int64_t) { return true; };
    /// Called when a file or a folder was flushed to the disk, with a path by which it can be opened.
    std::function<void(const std::string& path)> flushed = [](const std::string&) {};
};

/// Runs it under observation. Nothing when this system forbids that.
std::optional<ProgramResult> RunTempodialObserved(
    const std::vector<std::string>& arguments, const RunObserver& observer);

/// Runs it under observation and kills it at the given system call, counted from 1; 0 counts them without killing.
/// Nothing when this system forbids observation.
std::optional<ProgramResult> RunTempodialKilledAt(const std::vector<std::string>& arguments, std::int64_t systemCall);

/// The same, but at that system call it stands still while something is done to its surroundings, and then goes on.
std::optional<ProgramResult> RunTempodialDisturbedAt(
    const std::vector<std::string>& arguments, std::int64_t systemCall, const std::function<void()>& disturb);

}
