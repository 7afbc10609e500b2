#pragma once

#include "session/ProductFacts.h"
#include "terminal/ProfileProgram.h"

#include <ostream>

namespace tempodial {

/// The desktop program: its arguments, the profile, the add-in and the windows, until a person quits.
class DesktopProgram final : public ProfileProgram
{
public:
    static constexpr auto Name = DesktopProgramName;

    DesktopProgram(std::ostream& out, std::ostream& error);

protected:
    ExitStatus Work(const ProfileOptions& options) override;

private:
    void RunWindows(const ProfileOptions& options);
};

}
