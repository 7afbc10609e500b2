#include "terminal/ProfileProgram.h"

#include "terminal/ProfileArguments.h"
#include "terminal/ProgramRun.h"

#include <utility>

namespace tempodial {

namespace {

constexpr auto ExitStatuses = "Exit status: 0 done; 1 not done; 2 unusable arguments; 3 the profile is in use by\n"
                              "another process.";

}

ProfileProgram::ProfileProgram(ArgumentParser::Help help, std::ostream& out, std::ostream& error)
    : mHelp(std::move(help))
    , mOut(out)
    , mError(error)
{
    mHelp.footer += ExitStatuses;
}

ExitStatus ProfileProgram::Run(const std::vector<std::string>& arguments) noexcept
{
    return RunProgram(mHelp.name, mError, [&] { return Execute(arguments); });
}

void ProfileProgram::Complain(const std::string& message) const
{
    tempodial::Complain(mError, mHelp.name, message);
}

ExitStatus ProfileProgram::Execute(const std::vector<std::string>& arguments)
{
    const ArgumentParser parser(mHelp);
    ProfileArguments profile;
    auto list = parser.Arguments();
    profile.Declare(list);
    Declare(list);
    if (!parser.Parse(arguments, mOut)) {
        return ExitStatus::Done;
    }
    auto options = profile.Options();
    options.warn = [this](const std::string& message) { Complain(message); };
    return Work(options);
}

}
