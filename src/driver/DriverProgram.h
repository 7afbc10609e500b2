#pragma once

#include "terminal/ExitStatus.h"

#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

/// The program: reads its arguments, then commands from a file descriptor up to its end, and answers them.
class DriverProgram
{
public:
    static constexpr auto Name = "tempodial-drive";

    /// Reads commands from the descriptor, prints answers to the first stream, and what went wrong to the second.
    DriverProgram(int input, std::ostream& out, std::ostream& error)
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
