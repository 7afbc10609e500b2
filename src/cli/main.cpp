#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "terminal/ProgramRun.h"

#include <iostream>
#include <unistd.h>

int main(int count, char** arguments)
{
    using namespace tempodial;
    try {
        PrepareProcess();
        CommandLine commandLine(AllCommands(), std::cout, Screen::Of(STDOUT_FILENO), std::cerr);
        return static_cast<int>(commandLine.Run({ arguments + 1, arguments + count }));
    } catch (...) {
        return static_cast<int>(ExitStatus::NotDone);
    }
}
