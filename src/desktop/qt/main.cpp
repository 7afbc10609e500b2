#include "desktop/qt/DesktopProgram.h"
#include "terminal/ProgramRun.h"

#include <iostream>

int main(int count, char** arguments)
{
    using namespace tempodial;
    return RunMain(DesktopProgram::Name, count, arguments,
        [](const std::vector<std::string>& given) { return DesktopProgram(std::cout, std::cerr).Run(given); });
}
