#pragma once

#include "terminal/ProfileProgram.h"

#include <ostream>

namespace tempodial {

/// The program: reads its arguments, then commands from a file descriptor up to its end, does them at the desktop's
/// windows, on a screen that nobody sees, and answers them.
class DeskDriverProgram final : public ProfileProgram
{
public:
    static constexpr auto Name = "tempodial-desktop-drive";

    /// Reads commands from the descriptor, prints answers to the first stream, and what went wrong to the second.
    DeskDriverProgram(int input, std::ostream& out, std::ostream& error);

protected:
    ExitStatus Work(const ProfileOptions& options) override;

private:
    int mInput;
};

}
