#include "desktop/qt/DesktopProgram.h"
#include "terminal/ProgramRun.h"

#include <iostream>

int main(int count, char** arguments)
{
    using namespace tempodial;
    try {
        PrepareProcess();
        DesktopProgram program(std::cout, std::cerr);
        return static_cast<int>(program.Run({ arguments + 1, arguments + count }));
    } catch (...) {
        return static_cast<int>(ExitStatus::NotDone);
    }
}
