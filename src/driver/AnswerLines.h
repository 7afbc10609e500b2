#pragma once

#include "terminal/ExitStatus.h"

#include <ostream>

namespace tempodial {

class Driver;

/// Reads commands from a file descriptor up to its end, a line each, and prints the answers; then the driver ends as a
/// normal exit of Outlook does. Tells the second stream, in the name of a program, when an answer can't be printed.
ExitStatus AnswerLines(Driver& driver, int input, std::ostream& out, std::ostream& error, const char* program);

}
