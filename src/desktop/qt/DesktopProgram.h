#pragma once

#include "desktop/StartWish.h"
#include "session/ProductFacts.h"
#include "terminal/ProfileProgram.h"

#include <ostream>

namespace tempodial {

class Desk;
class GuardedApplication;

/// The desktop program: its arguments, the profile, the add-in and the windows, until a person quits.
class DesktopProgram final : public ProfileProgram
{
public:
    static constexpr auto Name = DesktopProgramName;

    DesktopProgram(std::ostream& out, std::ostream& error);

protected:
    void Declare(ArgumentList& arguments) override;
    ExitStatus Work(const ProfileOptions& given) override;

private:
    /// Opens the profile; true when it is an example that a person wants to go.
    bool RunWindows(const ProfileOptions& options, GuardedApplication& application);
    /// Starts the desk and shows its windows until a person quits; true as above.
    bool ShowWindows(Desk& desk, GuardedApplication& application);
    StartWish Wish() const;

    bool mRefreshes = false;
    bool mReports = false;
};

}
