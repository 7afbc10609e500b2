#include "driver/DriverProgram.h"
#include "terminal/ProgramRun.h"

#include <iostream>
#include <unistd.h>

int main(int count, char** arguments)
{
    using namespace tempodial;
    return RunMain(DriverProgram::Name, count, arguments, [](const std::vector<std::string>& given) {
        return DriverProgram(STDIN_FILENO, std::cout, std::cerr).Run(given);
    });
}
