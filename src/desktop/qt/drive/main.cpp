#include "desktop/qt/drive/DeskDriverProgram.h"
#include "terminal/ProgramRun.h"

#include <iostream>
#include <unistd.h>

int main(int count, char** arguments)
{
    using namespace tempodial;
    try {
        PrepareProcess();
        DeskDriverProgram program(STDIN_FILENO, std::cout, std::cerr);
        return static_cast<int>(program.Run({ arguments + 1, arguments + count }));
    } catch (...) {
        return static_cast<int>(ExitStatus::NotDone);
    }
}
