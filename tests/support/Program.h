#pragma once

#include <cstdint>
#include <optional>
#include <string>
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

/// Runs the built program with arguments, in an environment without anything of the caller's profile.
ProgramResult RunTempodial(const std::vector<std::string>& arguments);

/// Runs it under observation and kills it at the given system call, counted from 1; 0 counts them without killing.
/// Nothing when this system forbids observation.
std::optional<ProgramResult> RunTempodialKilledAt(const std::vector<std::string>& arguments, std::int64_t systemCall);

}
