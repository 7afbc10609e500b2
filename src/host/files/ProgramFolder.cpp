#include "host/files/ProgramFolder.h"

#include <filesystem>
#include <system_error>

namespace tempodial {

std::string InProgramFolder(const std::string& name)
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (program.parent_path().parent_path() / name).string();
}

}
