#include "desktop/qt/drive/DeskDriverProgram.h"
#include "terminal/ProgramRun.h"

#include <iostream>
#include <unistd.h>

int main(int count, char** arguments)
{
    using namespace tempodial;
    return RunMain(DeskDriverProgram::Name, count, arguments, [](const std::vector<std::string>& given) {
        return DeskDriverProgram(STDIN_FILENO, std::cout, std::cerr).Run(given);
    });
}
