#pragma once

#include "terminal/ExitStatus.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

/// Runs a program with its arguments, the program's own name left out, and answers its exit status. The process is
/// prepared for it: standard streams that the caller has closed are opened, so that no file of ours takes their place,
/// and a reader that goes away early, or a file that may not grow, is noticed by the write that fails. Large blocks of
/// memory go back to the system at once, and a want of memory is noted. What leaves the work, as where there is too
/// little memory to begin, becomes a complaint all the same.
int RunMain(const char* program, int count, char** arguments,
    const std::function<ExitStatus(const std::vector<std::string>& arguments)>& work) noexcept;

/// From here on a reader that goes away ends the process in silence, by the system's own signal: for the moment from
/// which on all that is left to do is to write an answer.
void EndWithReader();

/// Writes what went wrong, and what to do, as the one line `program: message`.
void Complain(std::ostream& stream, const std::string& program, const std::string& message);

/// Does a program's work; what leaves it becomes a complaint and the exit status for it.
ExitStatus RunProgram(
    const std::string& program, std::ostream& error, const std::function<ExitStatus()>& work) noexcept;

}
