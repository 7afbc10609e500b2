#pragma once

#include "terminal/ExitStatus.h"

#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

/// The program: reads its arguments, then commands from a file descriptor up to its end, does them at the desktop's
/// windows, on a screen that nobody sees, and answers them.
class DeskDriverProgram
{
public:
    static constexpr auto Name = "tempodial-desktop-drive";

    /// Reads commands from the descriptor, prints answers to the first stream, and what went wrong to the second.
    DeskDriverProgram(int input, std::ostream& out, std::ostream& error)
        : mInput(input)
        , mOut(out)
        , mError(error)
    {
    }

    /// Runs with the arguments, the program's name left out. Fails never.
    ExitStatus Run(const std::vector<std::string>& arguments) noexcept;

private:
    ExitStatus Execute(const std::vector<std::string>& arguments);

    int mInput;
    std::ostream& mOut;
    std::ostream& mError;
};

}
