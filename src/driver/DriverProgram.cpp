#include "driver/DriverProgram.h"

#include "driver/AnswerLines.h"
#include "driver/Driver.h"
#include "host/files/ProgramFolder.h"
#include "terminal/UsageError.h"

#include <cstdlib>

namespace tempodial {

namespace {

constexpr auto Description = "The host of the add-in without windows, worked by another program: reads one JSON\n"
                             "object a line, does it as a person would, and answers with one JSON object a\n"
                             "line, which shows what a person would see.\n";

constexpr auto Footer = "An example:\n"
                        "  echo '{\"do\":\"start\"}' | tempodial-drive --profile /tmp/profile\n"
                        "\n"
                        "The end of the input ends the host as a normal exit does.\n"
                        "\n";

/// What is set in the environment, else another.
std::string SetOr(const char* variable, const std::string& other)
{
    const auto* set = std::getenv(variable);
    return set != nullptr && *set != '\0' ? set : other;
}

/// The programs of the add-in that is named, nothing for the one in this program.
std::optional<RemotePrograms> ProgramsOf(const std::optional<std::string>& addIn)
{
    if (!addIn) {
        return std::nullopt;
    }
    const bool isInstalled = *addIn == "wine-shipped";
    if (!isInstalled && *addIn != "wine") {
        throw UsageError("there is no add-in \"" + *addIn + "\": give wine or wine-shipped");
    }
    RemotePrograms programs { .folder = SetOr("TEMPODIAL_ADDIN_DIR", InProgramFolder("lib/tempodial/windows")) };
    if (isInstalled) {
        programs.installed = SetOr("TEMPODIAL_ADDIN_MODULE", programs.folder + "/Tempodial.dll");
    }
    return programs;
}

}

DriverProgram::DriverProgram(int input, std::ostream& out, std::ostream& error)
    : ProfileProgram({ Name, Description, Footer }, out, error)
    , mInput(input)
{
}

void DriverProgram::Declare(ArgumentList& arguments)
{
    arguments.Optional("--addin WHERE", mAddIn,
        "\"wine\" for the add-in for Windows, run by Wine, \"wine-shipped\" for\nits module as it is installed; else "
        "the one in this program");
}

ExitStatus DriverProgram::Work(const ProfileOptions& options)
{
    Driver driver(options, ProgramsOf(mAddIn));
    return AnswerLines(driver, mInput, Out(), Complaints(), Name);
}

}
