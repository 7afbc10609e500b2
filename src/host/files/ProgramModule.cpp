#include "host/files/ProgramModule.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>

namespace tempodial {

std::string ProgramModule::PathOf(const std::string& name)
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (program.parent_path().parent_path() / "lib/tempodial" / (name + ".so")).string();
}

void* ProgramModule::Symbol(const char* name) const
{
    // It stays loaded: GLib, on which modules stand, can't be unloaded.
    auto* module = ::dlopen(mPath.c_str(), RTLD_NOW | RTLD_LOCAL);
    auto* symbol = module != nullptr ? ::dlsym(module, name) : nullptr;
    if (symbol == nullptr) {
        throw Failure(Error::CannotCreateObject);
    }
    return symbol;
}

}
