#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "terminal/ProgramRun.h"

#include <iostream>
#include <unistd.h>

int main(int count, char** arguments)
{
    using namespace tempodial;
    return RunMain(CommandLine::Name, count, arguments, [](const std::vector<std::string>& given) {
        CommandLine commandLine(AllCommands(), std::cout, Screen::Of(STDOUT_FILENO), std::cerr);
        return commandLine.Run(given);
    });
}
