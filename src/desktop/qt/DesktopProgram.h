#pragma once

#include "session/ProductFacts.h"
#include "session/ProfileOptions.h"
#include "terminal/ExitStatus.h"

#include <ostream>
#include <string>
#include <vector>

namespace tempodial {

/// The desktop program: its arguments, the profile, the add-in and the windows, until a person quits.
class DesktopProgram
{
public:
    static constexpr auto Name = DesktopProgramName;

    DesktopProgram(std::ostream& out, std::ostream& error)
        : mOut(out)
        , mError(error)
    {
    }

    /// Runs with arguments, the program's name left out.
    ExitStatus Run(const std::vector<std::string>& arguments) noexcept;

private:
    ExitStatus Execute(const std::vector<std::string>& arguments);
    void RunWindows(const ProfileOptions& options);

    std::ostream& mOut;
    std::ostream& mError;
};

}
