#pragma once

#include "terminal/ProfileProgram.h"

#include <optional>
#include <ostream>
#include <string>

namespace tempodial {

/// The program: reads its arguments, then commands from a file descriptor up to its end, and answers them.
class DriverProgram final : public ProfileProgram
{
public:
    static constexpr auto Name = "tempodial-drive";

    /// Reads commands from the descriptor, prints answers to the first stream, and what went wrong to the second.
    DriverProgram(int input, std::ostream& out, std::ostream& error);

protected:
    void Declare(ArgumentList& arguments) override;
    ExitStatus Work(const ProfileOptions& options) override;

private:
    int mInput;
    std::optional<std::string> mAddIn;
};

}
