#include "cli/RunHere.h"

#include "cli/CommandLine.h"
#include "cli/Commands.h"

#include <sstream>

namespace tempodial {

ProgramResult RunHere(const std::vector<std::string>& arguments)
{
    std::ostringstream out;
    std::ostringstream error;
    CommandLine commandLine(AllCommands(), out, {}, error);
    const auto status = static_cast<int>(commandLine.Run(arguments));
    return { .status = status, .out = out.str(), .error = error.str() };
}

}
